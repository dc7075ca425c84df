/// The figures of a series.
#ifndef VMETRICS_TOOL_STATS_SUMMARY_H_
#define VMETRICS_TOOL_STATS_SUMMARY_H_

#include <cstdint>
#include <vector>

#include "Privacy.h"
#include "stats/LogStatistics.h"

namespace vmetrics {

struct Figures {
  std::uint64_t count = 0;
  std::uint64_t failures = 0;
  std::uint64_t unusable = 0;
  std::vector<ErrorCodes::Counted> errorCodes;  ///< The most frequent ones.
  std::uint64_t otherFailures = 0;              ///< With other codes, or none.

  // Of the values; not a number where there is none.
  double least;
  double median;
  double percentile95;
  double percentile99;
  double greatest;
  double relativeError = 0;  ///< Of the three in the middle.

  double FailureRate() const { return static_cast<double>(failures) / static_cast<double>(count); }
};

struct Summary {
  SeriesKey key;
  bool isMasked;  ///< Whether the values are to be kept from sight.
  Figures figures;
};

/// Of all series, steps first.
std::vector<Summary> Summarise(const LogStatistics& statistics, const Privacy& privacy);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_SUMMARY_H_
