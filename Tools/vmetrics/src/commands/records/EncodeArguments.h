/// What a user writes, as the numbers and bytes of a record. All throw UsageError where it is not
/// what it should be.
#ifndef VMETRICS_TOOL_ENCODEARGUMENTS_H_
#define VMETRICS_TOOL_ENCODEARGUMENTS_H_

#include <VMetrics.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace vmetrics {

/// The number of 32 bits that the option `name` is given, written as a metric's ID.
std::uint32_t WordOf(std::string_view name, const std::string& text);

/// The bytes that hexadecimal digits stand for.
std::string BytesOf(const std::string& digits);

/// The bytes of a value as the type of the metric `id` asks.
std::string ValueOf(const std::string& id, const MetricEntry& metric, const std::string& text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_ENCODEARGUMENTS_H_
