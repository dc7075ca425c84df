#include "trace/Timeline.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <tuple>
#include <utility>

namespace vmetrics {

namespace {

constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

bool HaveSameContent(const Step& a, const Step& b) {
  return std::tie(a.span, a.parent, a.start, a.end, a.description, a.errorCode) ==
             std::tie(b.span, b.parent, b.start, b.end, b.description, b.errorCode) &&
         a.hasErrorCode == b.hasErrorCode && a.isFailed == b.isFailed;
}

/// Rotated and merged logs hold a record more than once. What stays keeps its order.
void DropCopies(std::vector<const Step*>& steps, Timeline& timeline) {
  std::vector<std::size_t> bySpan(steps.size());
  for (std::size_t i = 0; i < bySpan.size(); ++i) {
    bySpan[i] = i;
  }
  const auto key = [&](std::size_t i) {
    const Step& step = *steps[i];
    return std::tie(step.span, step.start, step.end, step.description, step.errorCode, step.parent);
  };
  std::stable_sort(bySpan.begin(), bySpan.end(),
                   [&](std::size_t a, std::size_t b) { return key(a) < key(b); });
  const Step* last = nullptr;
  for (const std::size_t i : bySpan) {
    if (last != nullptr && HaveSameContent(*last, *steps[i])) {
      steps[i] = nullptr;
      ++timeline.copies;
      continue;
    }
    timeline.sharedSpans += last != nullptr && last->span == steps[i]->span ? 1 : 0;
    last = steps[i];
  }
  steps.erase(std::remove(steps.begin(), steps.end(), nullptr), steps.end());
}

bool HasDates(const Step& step) { return IsDate(step.start) && IsDate(step.end); }

/// A time in which starts and ends follow each other without one being far away from the next.
struct Stretch {
  std::int64_t first;
  std::int64_t last;
  std::size_t steps = 0;  ///< That lie in it with both their ends.

  bool Holds(std::int64_t tick) const { return first <= tick && tick <= last; }
};

std::vector<Stretch> StretchesOf(const std::vector<const Step*>& steps) {
  std::vector<std::int64_t> ticks;
  for (const Step* step : steps) {
    if (HasDates(*step)) {
      ticks.insert(ticks.end(), {step->start, step->end});
    }
  }
  std::sort(ticks.begin(), ticks.end());
  std::vector<Stretch> stretches;
  for (const std::int64_t tick : ticks) {
    if (stretches.empty() || tick - stretches.back().last > kLongestPause) {
      stretches.push_back({tick, tick});
    }
    stretches.back().last = tick;
  }
  return stretches;
}

/// The stretch in which most steps lie, and of equal ones the last, as clocks start in 1970. Where
/// none lies in one, as with a single step that took months, nothing is odd about any: all of time.
Stretch MainStretch(const std::vector<const Step*>& steps) {
  std::vector<Stretch> stretches = StretchesOf(steps);
  Stretch main = {0, std::numeric_limits<std::int64_t>::max()};
  for (const Step* step : steps) {
    if (HasDates(*step) && step->start <= step->end) {
      const auto behind = std::upper_bound(
          stretches.begin(), stretches.end(), step->start,
          [](std::int64_t tick, const Stretch& stretch) { return tick < stretch.first; });
      std::prev(behind)->steps += std::prev(behind)->Holds(step->end) ? 1 : 0;
    }
  }
  for (const Stretch& stretch : stretches) {
    main = stretch.steps > 0 && stretch.steps >= main.steps ? stretch : main;
  }
  return main;
}

Placement PlacementOf(const Step& step, const Stretch& main) {
  if (!HasDates(step)) {
    return Placement::kNoDate;
  }
  if (!main.Holds(step.start) || !main.Holds(step.end)) {
    return Placement::kFarAway;
  }
  return step.end < step.start ? Placement::kEndsBeforeStart : Placement::kInScale;
}

bool LiesBefore(const TimelineStep& a, const TimelineStep& b) {
  const auto key = [](const TimelineStep& timed) {
    const Step& step = *timed.step;
    // Of those with one start the ones without a length first, then the ones that others lie
    // within.
    return std::make_tuple(timed.placement == Placement::kNoDate, step.start, step.end > step.start,
                           step.end > step.start ? -step.end : 0);
  };
  return key(a) < key(b);
}

/// A step that only touches the other's edge, or takes the same time, comes before or after it.
bool LiesWithin(const Step& inner, const Step& outer) {
  return outer.start <= inner.start && inner.end <= outer.end && inner.start < outer.end &&
         outer.start < inner.end && (outer.start != inner.start || outer.end != inner.end);
}

/// For each step the innermost one that it lies within, or kNowhere; sets the depths.
std::vector<std::size_t> Nest(std::vector<TimelineStep>& steps) {
  std::vector<std::size_t> outer(steps.size(), kNowhere);
  std::vector<std::size_t> around;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (steps[i].placement != Placement::kInScale) {
      continue;
    }
    while (!around.empty() && !LiesWithin(*steps[i].step, *steps[around.back()].step)) {
      around.pop_back();
    }
    outer[i] = around.empty() ? kNowhere : around.back();
    steps[i].depth = static_cast<std::uint32_t>(around.size());
    around.push_back(i);
  }
  return outer;
}

/// Among steps that lie within the same one: the one that ended last, the one that ended last
/// before that one's start, and so on; and within each of these again.
void MarkSlowestPath(std::vector<TimelineStep>& steps, const std::vector<std::size_t>& outer) {
  std::vector<std::size_t> byEnd;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (steps[i].placement == Placement::kInScale) {
      byEnd.push_back(i);
    }
  }
  std::stable_sort(byEnd.begin(), byEnd.end(), [&](std::size_t a, std::size_t b) {
    return steps[a].step->end < steps[b].step->end;
  });
  constexpr std::int64_t kAnyEnd = std::numeric_limits<std::int64_t>::max();
  std::vector<std::int64_t> latestEnd(steps.size() + 1, kAnyEnd);  // The last for the outermost.
  for (auto at = byEnd.rbegin(); at != byEnd.rend(); ++at) {
    std::int64_t& latest = latestEnd[std::min(outer[*at], steps.size())];
    if (steps[*at].step->end <= latest) {
      steps[*at].isOnSlowestPath = true;
      latest = steps[*at].step->start;
    }
  }
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const bool isWithinOther = outer[i] != kNowhere && !steps[outer[i]].isOnSlowestPath;
    steps[i].isOnSlowestPath = steps[i].isOnSlowestPath && !isWithinOther;
  }
}

void FindGaps(Timeline& timeline) {
  const std::int64_t shortest = std::max<std::int64_t>(
      1, (timeline.Duration() + Timeline::kGapShare - 1) / Timeline::kGapShare);
  std::int64_t reached = timeline.start;
  for (TimelineStep& timed : timeline.steps) {
    const Step& step = *timed.step;
    if (timed.placement == Placement::kInScale) {
      const std::int64_t gap = step.start - reached;
      timed.gapBefore = gap >= shortest ? gap : 0;
      reached = std::max(reached, step.end);
    } else if (timed.placement == Placement::kFarAway) {
      reached = std::max(reached, step.end);
    } else if (timed.placement == Placement::kEndsBeforeStart) {
      reached = timeline.end;  // Nobody knows how long it ran: from here on there may be no gap.
    }
  }
}

void FindLongest(Timeline& timeline, const std::vector<std::size_t>& outer) {
  const std::vector<TimelineStep>& steps = timeline.steps;
  std::vector<std::int64_t> ownTime(steps.size(), 0);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (steps[i].isOnSlowestPath) {
      const std::int64_t time = steps[i].step->end - steps[i].step->start;
      ownTime[i] += time;
      if (outer[i] != kNowhere) {
        ownTime[outer[i]] -= time;
      }
    }
  }
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (ownTime[i] > timeline.longest.time) {
      timeline.longest = {steps[i].step, false, ownTime[i]};
    }
    if (steps[i].gapBefore > timeline.longest.time) {
      timeline.longest = {steps[i].step, true, steps[i].gapBefore};
    }
  }
}

}  // namespace

std::size_t Timeline::Count(Placement placement) const {
  const auto count = std::count_if(
      steps.begin(), steps.end(),
      [placement](const TimelineStep& timed) { return timed.placement == placement; });
  return static_cast<std::size_t>(count);
}

Timeline TimelineOf(std::vector<const Step*> steps) {
  Timeline timeline;
  DropCopies(steps, timeline);
  const Stretch main = MainStretch(steps);
  timeline.steps.reserve(steps.size());
  for (const Step* step : steps) {
    timeline.steps.push_back({step, PlacementOf(*step, main)});
    timeline.failures += step->isFailed ? 1 : 0;
    if (timeline.steps.back().placement == Placement::kInScale) {
      timeline.start = timeline.HasScale() ? std::min(timeline.start, step->start) : step->start;
      timeline.end = std::max(timeline.end, step->end);
    }
  }
  std::stable_sort(timeline.steps.begin(), timeline.steps.end(), LiesBefore);
  const std::vector<std::size_t> outer = Nest(timeline.steps);
  MarkSlowestPath(timeline.steps, outer);
  FindGaps(timeline);
  FindLongest(timeline, outer);
  return timeline;
}

}  // namespace vmetrics
