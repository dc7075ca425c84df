/// How the steps of one transaction lie in time.
#ifndef VMETRICS_TOOL_TIMELINE_H_
#define VMETRICS_TOOL_TIMELINE_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "trace/StepStore.h"

namespace vmetrics {

/// Whether a step's times can be drawn beside those of the other steps.
enum class Placement {
  kInScale,
  kEndsBeforeStart,  ///< The clock was set meanwhile.
  kFarAway,          ///< Starts or ends more than kLongestPause from where the others lie.
  kNoDate            ///< A time is missing or is none.
};

struct TimelineStep {
  const Step* step;
  Placement placement;
  std::uint32_t depth = 0;  ///< How many steps it lies within, in time.
  /// It determined when the transaction, or the step around it, ended.
  bool isOnSlowestPath = false;
  std::int64_t gapBefore = 0;  ///< How long no step ran before it, where that is worth telling.
};

/// What took most of the slowest path: a step, without those within it that are on the path, or the
/// gap before that step.
struct Longest {
  const Step* step = nullptr;  ///< Null where nothing took any time.
  bool isGap = false;
  std::int64_t time = 0;
};

struct Timeline {
  /// A gap is told when it takes one part in so many of the transaction.
  static constexpr std::int64_t kGapShare = 20;

  /// By their starts; those without a date last. A step that the logs hold twice is there once.
  std::vector<TimelineStep> steps;
  std::int64_t start = kNoTick;  ///< Of the steps in scale; without any, kNoTick.
  std::int64_t end = kNoTick;    ///< Likewise.
  Longest longest;
  std::size_t failures = 0;     ///< Steps that failed.
  std::size_t copies = 0;       ///< Records left out, as the logs hold the same once more.
  std::size_t sharedSpans = 0;  ///< Steps that have the span identifier of another one.

  bool HasScale() const { return start != kNoTick; }
  /// Whether there is a choice which steps are on the slowest path.
  bool HasPath() const { return HasScale() && steps.size() > 1; }
  std::int64_t Duration() const { return HasScale() ? end - start : 0; }
  std::size_t Count(Placement placement) const;
};

/// `steps` in the order of the logs, by which steps of the same time are shown.
Timeline TimelineOf(std::vector<const Step*> steps);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TIMELINE_H_
