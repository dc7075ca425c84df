/// Entries of the catalogue, by the IDs of a metrics line.
#ifndef VMETRICS_TOOL_METRICLOOKUP_H_
#define VMETRICS_TOOL_METRICLOOKUP_H_

#include <VMetrics.h>

#include <optional>
#include <string_view>

namespace vmetrics {

/// The number that `id` is the decimal text of, if it is one of an int, as lines have numeric IDs.
std::optional<int> NumericId(std::string_view id);

// The entry of a metric; null where the catalogue has none. Neither allocates for each line.
const MetricEntry* FindNumericMetric(int id);
const MetricEntry* FindEventMetric(std::string_view eventId);

/// Whether the entry has the flag of private metrics.
bool IsPrivate(const MetricEntry& metric);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_METRICLOOKUP_H_
