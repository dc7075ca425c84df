/// What has become of steps and metrics from one log to another.
#ifndef VMETRICS_TOOL_STATS_COMPARISON_H_
#define VMETRICS_TOOL_STATS_COMPARISON_H_

#include <cstdint>
#include <optional>
#include <vector>

#include "stats/Summary.h"

namespace vmetrics {

/// When a step counts as worse.
struct Rule {
  double threshold = 10;         ///< Percent of the median, percentage points of the failure rate.
  double leastGrowth = 0;        ///< Milliseconds; a median that grew by less has not.
  std::uint64_t leastCount = 1;  ///< Records in either log; with less a step is not judged.
};

enum class Verdict {
  kNone,  ///< Of metrics: more of them may be better or worse.
  kSame,
  kWorse,
  kFew,    ///< Not judged, as there are too few records.
  kAdded,  ///< In the new log only.
  kGone    ///< In the old log only.
};

struct Change {
  SeriesKey key;
  bool isMasked;
  std::optional<Figures> before;
  std::optional<Figures> after;
  Verdict verdict = Verdict::kNone;
  bool medianGrew = false;
  bool failureRateGrew = false;
};

/// Both lists side by side; they are in the order of their keys, and so is the result.
std::vector<Change> Compare(const std::vector<Summary>& before, const std::vector<Summary>& after,
                            const Rule& rule);

/// What has become of the steps.
struct Outcome {
  std::uint64_t judged = 0;
  std::uint64_t worse = 0;      ///< Of the judged ones.
  std::uint64_t notJudged = 0;  ///< Too few records, or in one of the logs only.
};

Outcome OutcomeOf(const std::vector<Change>& changes);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_COMPARISON_H_
