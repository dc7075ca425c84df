/// What a log says of each step and each numeric metric.
#ifndef VMETRICS_TOOL_STATS_SERIES_H_
#define VMETRICS_TOOL_STATS_SERIES_H_

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "LogEntry.h"
#include "stats/Distribution.h"

namespace vmetrics {

/// Into what the time is cut up; in UTC.
enum class Period { kNone, kDay, kHour };

/// What is counted apart: a step, or a metric with a numeric ID, of one period.
struct SeriesKey {
  std::optional<int> id;  ///< Of a metric; a step has none.
  std::string name;       ///< Of the step, or of the metric's member.
  std::int64_t period;    ///< Days or hours since the epoch; kTimeless where there is none.

  static constexpr std::int64_t kTimeless = -1;

  bool IsStep() const { return !id; }
  bool operator<(const SeriesKey& other) const {
    return std::tie(id, name, period) < std::tie(other.id, other.name, other.period);
  }
};

/// How often each error code occurs; of codes that come when there are a thousand already, how
/// many they are.
class ErrorCodes {
 public:
  struct Counted {
    std::int64_t code;
    std::uint64_t count;
  };

  void Add(std::optional<std::int64_t> code);

  /// Up to `most` codes, the most frequent first, of equally frequent ones the least.
  std::vector<Counted> MostFrequent(std::size_t most) const;

 private:
  std::unordered_map<std::int64_t, std::uint64_t> counts_;
};

struct Series {
  std::uint64_t count = 0;     ///< Records.
  std::uint64_t failures = 0;  ///< Of a step.
  std::uint64_t unusable = 0;  ///< Records whose value is none that can be counted.
  Distribution values;         ///< Durations of a step in milliseconds, or values of a metric.
  ErrorCodes errorCodes;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_SERIES_H_
