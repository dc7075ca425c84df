#include "stats/Summary.h"

#include <limits>
#include <string>

namespace vmetrics {

namespace {

void SetValues(Figures& figures, const Distribution& values) {
  const bool hasAny = values.Count() > 0;
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const std::vector<double> percentiles = values.Percentiles({50, 95, 99});
  figures.least = hasAny ? values.Least() : kNone;
  figures.median = hasAny ? percentiles[0] : kNone;
  figures.percentile95 = hasAny ? percentiles[1] : kNone;
  figures.percentile99 = hasAny ? percentiles[2] : kNone;
  figures.greatest = hasAny ? values.Greatest() : kNone;
  figures.relativeError = values.RelativeError();
}

Figures FiguresOf(const Series& series) {
  constexpr std::size_t kShownCodes = 3;
  Figures figures;
  figures.count = series.count;
  figures.failures = series.failures;
  figures.unusable = series.unusable;
  figures.errorCodes = series.errorCodes.MostFrequent(kShownCodes);
  figures.otherFailures = series.failures;
  for (const ErrorCodes::Counted& counted : figures.errorCodes) {
    figures.otherFailures -= counted.count;
  }
  SetValues(figures, series.values);
  return figures;
}

}  // namespace

std::vector<Summary> Summarise(const LogStatistics& statistics, const Privacy& privacy) {
  std::vector<Summary> summaries;
  for (const LogStatistics::Named* named : statistics.Sorted()) {
    const SeriesKey& key = named->first;
    const bool isMasked = !key.IsStep() && privacy.IsMasked(std::to_string(*key.id));
    summaries.push_back({key, isMasked, FiguresOf(named->second)});
  }
  return summaries;
}

}  // namespace vmetrics
