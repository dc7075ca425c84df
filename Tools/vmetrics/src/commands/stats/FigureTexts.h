/// How figures and what they are about are written.
#ifndef VMETRICS_TOOL_STATS_FIGURETEXTS_H_
#define VMETRICS_TOOL_STATS_FIGURETEXTS_H_

#include <cstdint>
#include <string>

#include "VJson.h"
#include "stats/Summary.h"

namespace vmetrics {

/// A value for people: whole numbers below ten million exact, greater ones as "5.369G", fractions
/// with five digits; "-" for none. "~" in front where it errs.
std::string ShownValue(double value, double relativeError = 0);

/// A value for machines: the shortest text that reads back the same; empty for none.
std::string ExactValue(double value);

/// Percent, as "3.2"; "-" for none.
std::string ShownRate(double rate);

/// What "~" means to people who look at these errors; empty where none is more than 0.
std::string ErrorLegend(double greatestRelativeError);

/// The name of a step, or the name and ID of a metric; printable.
std::string LabelOf(const SeriesKey& key);

/// "2026-11-21" or "2026-11-21 16:00"; "no time" for kTimeless.
std::string PeriodText(Period period, std::int64_t index);

/// Adds what a series is about.
void AddKey(VJson::Value& object, const SeriesKey& key, Period period);

/// Adds a value of a series; the mask where it is kept from sight, null where there is none.
void AddValue(VJson::Value& object, const char* name, double value, bool isMasked);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_FIGURETEXTS_H_
