/// The metrics that the library knows by itself. Each stands here once; the catalogue's maps are
/// built from this table, which costs a fifteenth of the code that maps spelt out as such would.
#ifndef VMETRICS_VMETRICS_BUILTINMETRICS_H_
#define VMETRICS_VMETRICS_BUILTINMETRICS_H_

#include <array>
#include <cstdint>

namespace vmetrics {

/// One row: the key of the metric, and the three texts of its MetricEntry.
template <typename Key>
struct BuiltInRow {
  Key key;
  const char* type;
  const char* name;
  const char* privateFlag;
};

using BuiltInMetric = BuiltInRow<std::uint32_t>;
using BuiltInEvent = BuiltInRow<const char*>;

extern const std::array<BuiltInMetric, 121> kBuiltInMetrics;
extern const std::array<BuiltInEvent, 13> kBuiltInEvents;

}  // namespace vmetrics

#endif  // VMETRICS_VMETRICS_BUILTINMETRICS_H_
