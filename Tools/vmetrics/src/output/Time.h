/// Ticks and durations as people read them.
#ifndef VMETRICS_TOOL_TIME_H_
#define VMETRICS_TOOL_TIME_H_

#include <cstdint>
#include <string>

namespace vmetrics {

/// A tick, from 1970 to 9999, in UTC: "2026-11-21 16:04:17.733".
std::string UtcTime(std::int64_t tick);

/// Milliseconds in the unit that suits their number: "850 ms", "1.25 s",
/// "2 min 03 s", "3 h 05 min", "2 d 04 h"; negative ones with a sign.
std::string HumanDuration(std::int64_t milliseconds);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TIME_H_
