/// Comparisons as people and programs want them.
#ifndef VMETRICS_TOOL_STATS_COMPARISONOUTPUT_H_
#define VMETRICS_TOOL_STATS_COMPARISONOUTPUT_H_

#include <vector>

#include "stats/Comparison.h"
#include "stats/FigureTexts.h"

namespace vmetrics {

/// Writes them to standard output; `format` is "table", "json" (an object a line) or "csv".
void WriteChanges(const std::vector<Change>& changes, const Rule& rule, const std::string& format);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_COMPARISONOUTPUT_H_
