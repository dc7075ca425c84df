/// Sums up a log entry by entry.
#ifndef VMETRICS_TOOL_STATS_LOGSTATISTICS_H_
#define VMETRICS_TOOL_STATS_LOGSTATISTICS_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Privacy.h"
#include "stats/Series.h"

namespace vmetrics {

/// Which series are wanted.
struct SeriesChoice {
  Period period = Period::kNone;
  // Where neither names anything, all are wanted.
  std::vector<std::string> steps;
  std::vector<int> metrics;
};

/// Counts step records by step name, and records with a numeric ID by their ID and each member of
/// their "args" that is a number. A member of a private metric that is not the one the catalogue
/// names has data for a name: all such of one metric are counted together, with the mask for a
/// name.
class LogStatistics {
 public:
  static constexpr std::size_t kMostSeries = 50000;

  LogStatistics(SeriesChoice choice, const Privacy& privacy)
      : choice_(std::move(choice)), privacy_(privacy) {}
  LogStatistics(const LogStatistics&) = delete;
  LogStatistics& operator=(const LogStatistics&) = delete;

  void Add(const LogEntry& entry);

  using Named = std::pair<const SeriesKey, Series>;

  /// Steps by name, then metrics by ID and name; of each its periods in their order.
  std::vector<const Named*> Sorted() const;

  /// Values that are not counted, as there are kMostSeries others or their names take too much
  /// room.
  std::uint64_t LeftOut() const { return leftOut_; }

 private:
  void AddStep(const LogEntry& entry, std::string_view name);
  void AddMetric(const LogEntry& entry, int id);
  bool IsWanted(std::string_view step) const;
  bool IsWanted(int metric) const;
  std::int64_t PeriodOf(const LogEntry& entry) const;
  Series* SeriesOf(std::optional<int> id, std::string_view name, std::int64_t period);
  Series* NewSeries(std::optional<int> id, std::string_view name, std::int64_t period);

  const SeriesChoice choice_;
  const Privacy& privacy_;
  // 64 MB.
  DistributionBudget budget_{std::size_t{4} << 20U};
  std::size_t nameRoom_ = std::size_t{16} << 20U;
  std::unordered_map<std::string, Named> series_;
  std::string lookup_;  ///< A key of the map, kept for its memory.
  std::uint64_t leftOut_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_LOGSTATISTICS_H_
