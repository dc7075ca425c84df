/// The three times of a step.
#ifndef VMETRICS_TOOL_STEPTIMES_H_
#define VMETRICS_TOOL_STEPTIMES_H_

#include "Findings.h"
#include "LogEntry.h"

namespace vmetrics {

struct StepTimes {
  const Member* start;
  const Member* end;
  const Member* used;
};

/// Adds to the findings what is wrong with the times, with `isMasked` none of their values; nothing
/// where one is null or no time.
void CheckTimes(const Place& place, const StepTimes& times, bool isMasked, Findings& findings);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STEPTIMES_H_
