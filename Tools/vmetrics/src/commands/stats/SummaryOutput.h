/// Summaries as people and programs want them.
#ifndef VMETRICS_TOOL_STATS_SUMMARYOUTPUT_H_
#define VMETRICS_TOOL_STATS_SUMMARYOUTPUT_H_

#include <vector>

#include "stats/FigureTexts.h"

namespace vmetrics {

/// Writes them to standard output; `format` is "table", "json" (an object a line) or "csv".
void WriteSummaries(const std::vector<Summary>& summaries, Period period,
                    const std::string& format);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_SUMMARYOUTPUT_H_
