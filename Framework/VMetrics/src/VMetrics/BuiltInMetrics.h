/// The metrics that the library knows by itself. Each stands here once; the catalogue's maps are
/// built from this table, which costs a fifteenth of the code that maps spelt out as such would.
#ifndef VMETRICS_VMETRICS_BUILTINMETRICS_H_
#define VMETRICS_VMETRICS_BUILTINMETRICS_H_

#include <array>
#include <cstdint>

namespace vmetrics {

/// The name of an event, with room for the longest.
using BuiltInEventId = char[33];

/// One row: the key of the metric, and the three texts of its MetricEntry. They stand in the row
/// itself, so that nothing has to be relocated when the library is loaded; one that is too long
/// does not compile.
template <typename Key>
struct BuiltInRow {
  Key key;
  char type[9];
  char name[30];
  char privateFlag[2];
};

using BuiltInMetric = BuiltInRow<std::uint32_t>;
using BuiltInEvent = BuiltInRow<BuiltInEventId>;

extern const std::array<BuiltInMetric, 121> kBuiltInMetrics;
extern const std::array<BuiltInEvent, 13> kBuiltInEvents;

}  // namespace vmetrics

#endif  // VMETRICS_VMETRICS_BUILTINMETRICS_H_
