#include "stats/ComparisonOutput.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "Csv.h"
#include "JsonText.h"
#include "Table.h"
#include "Text.h"

namespace vmetrics {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// One of the figures, not a number where the log has none.
using Measure = double (*)(const Figures&);

double RelativeError(const Figures& figures) { return figures.relativeError; }
double Count(const Figures& figures) { return static_cast<double>(figures.count); }
double Rate(const Figures& figures) { return figures.FailureRate(); }
double Median(const Figures& figures) { return figures.median; }
double Percentile95(const Figures& figures) { return figures.percentile95; }

double Before(const Change& change, Measure measure) {
  return change.before ? measure(*change.before) : kNone;
}

double After(const Change& change, Measure measure) {
  return change.after ? measure(*change.after) : kNone;
}

// A table of steps, one of metrics ----------------------------------------------------------------

const char* MarkOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::kWorse:
      return "! ";
    case Verdict::kFew:
      return "? ";
    case Verdict::kAdded:
      return "+ ";
    case Verdict::kGone:
      return "- ";
    case Verdict::kNone:
    case Verdict::kSame:
      break;
  }
  return "  ";
}

std::string Arrow(const std::string& before, const std::string& after) {
  return before + "->" + after;
}

/// A measure in both logs, as `show` writes it; nothing on the side of a log that has none.
template <typename Show>
std::string Both(const Change& change, Show show) {
  return Arrow(change.before ? show(*change.before) : "", change.after ? show(*change.after) : "");
}

/// What has become of a value: empty where nothing has.
std::string Difference(double before, double after) {
  const double difference = after - before;
  if (std::isnan(difference) || difference == 0) {
    return {};
  }
  return before == 0 ? fmt::format("{:+.6g}", difference)
                     : fmt::format("{:+.1f}%", difference * 100 / std::fabs(before));
}

/// Adds both values and, in a cell of its own, their difference.
void AddValues(std::vector<std::string>& cells, const Change& change, Measure measure) {
  if (change.isMasked) {
    cells.push_back(Both(change, [](const Figures&) { return std::string(kMask); }));
    cells.emplace_back();
    return;
  }
  cells.push_back(Both(change, [measure](const Figures& figures) {
    return ShownValue(measure(figures), figures.relativeError);
  }));
  cells.push_back(Difference(Before(change, measure), After(change, measure)));
}

void AddRates(std::vector<std::string>& cells, const Change& change) {
  const double points = (After(change, Rate) - Before(change, Rate)) * 100;
  cells.push_back(
      Both(change, [](const Figures& figures) { return ShownRate(figures.FailureRate()); }));
  cells.push_back(std::isnan(points) || points == 0 ? "" : fmt::format("{:+.1f}", points));
}

void AddChange(Table& table, const Change& change) {
  std::vector<std::string> cells = {
      MarkOf(change.verdict) + LabelOf(change.key),
      Both(change, [](const Figures& figures) { return std::to_string(figures.count); })};
  if (change.key.IsStep()) {
    AddRates(cells, change);
  }
  AddValues(cells, change, Median);
  AddValues(cells, change, Percentile95);
  table.AddRow(std::move(cells), change.verdict == Verdict::kWorse ? Style::kRed : Style::kPlain);
}

const char* IsOrAre(std::uint64_t count) { return count == 1 ? "is" : "are"; }

double GreatestError(const std::vector<Change>& changes) {
  double greatest = 0;
  for (const Change& change : changes) {
    // Not a number where the log has none, which is then the one that is passed over.
    greatest = std::fmax(greatest, Before(change, RelativeError));
    greatest = std::fmax(greatest, After(change, RelativeError));
  }
  return greatest;
}

std::string LeastGrowthText(const Rule& rule) {
  return rule.leastGrowth > 0 ? fmt::format(" and at least {} ms", rule.leastGrowth)
                              : std::string();
}

/// The last line; none where no step could be judged, as then there is nothing to rely on.
std::string OutcomeText(const Outcome& outcome) {
  if (outcome.judged == 0) {
    return {};
  }
  std::string text = outcome.worse == 0 ? "No step is worse"
                                        : fmt::format("{} {} worse", Counted(outcome.worse, "step"),
                                                      IsOrAre(outcome.worse));
  if (outcome.notJudged > 0) {
    text += fmt::format(", {} {} not judged", outcome.notJudged, IsOrAre(outcome.notJudged));
  }
  return text + ".\n";
}

void WriteLegend(const std::vector<Change>& changes, const Rule& rule) {
  std::string legend = ErrorLegend(GreatestError(changes));
  const auto explain = [&](Verdict verdict, const std::string& meaning) {
    if (std::any_of(changes.begin(), changes.end(),
                    [verdict](const Change& change) { return change.verdict == verdict; })) {
      legend += MarkOf(verdict) + meaning + '\n';
    }
  };
  explain(Verdict::kWorse, fmt::format("worse: the median grew by more than {0}%{1},\n"
                                       "  or the failure rate by more than {0} percentage points",
                                       rule.threshold, LeastGrowthText(rule)));
  explain(Verdict::kFew, fmt::format("not judged: fewer than {} in one of the logs",
                                     Counted(rule.leastCount, "record")));
  explain(Verdict::kAdded, "in the new log only");
  explain(Verdict::kGone, "in the old log only");
  legend += OutcomeText(OutcomeOf(changes));
  Write(legend.empty() ? legend : '\n' + legend);
}

void WriteTables(const std::vector<Change>& changes, const Rule& rule) {
  Table steps({"  STEP (ms)", "COUNT", "FAILED %", "", "MEDIAN", "", "P95", ""});
  Table metrics({"  METRIC", "COUNT", "MEDIAN", "", "P95", ""});
  std::size_t stepCount = 0;
  for (const Change& change : changes) {
    AddChange(change.key.IsStep() ? steps : metrics, change);
    stepCount += change.key.IsStep() ? 1 : 0;
  }
  if (stepCount > 0) {
    Write(steps.Text(OutputWidth()));
  }
  if (stepCount > 0 && stepCount < changes.size()) {
    Write("\n");
  }
  if (stepCount < changes.size()) {
    Write(metrics.Text(OutputWidth()));
  }
  if (!changes.empty()) {
    WriteLegend(changes, rule);
  }
}

// Formats for programs ----------------------------------------------------------------------------

const char* NameOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::kSame:
      return "same";
    case Verdict::kWorse:
      return "worse";
    case Verdict::kFew:
      return "few";
    case Verdict::kAdded:
      return "added";
    case Verdict::kGone:
      return "gone";
    case Verdict::kNone:
      break;
  }
  return "none";
}

VJson::Value SideObject(const Change& change, const Figures& figures) {
  VJson::Value side;
  side.AddJsonValue("count", figures.count);
  if (change.key.IsStep()) {
    side.AddJsonValue("failures", figures.failures);
    side.AddJsonValue("failureRate", figures.FailureRate());
  }
  AddValue(side, "median", figures.median, change.isMasked);
  AddValue(side, "p95", figures.percentile95, change.isMasked);
  side.AddJsonValue("relativeError", figures.relativeError);
  return side;
}

VJson::Value DifferenceObject(const Change& change) {
  const auto difference = [&change](Measure measure) {
    return After(change, measure) - Before(change, measure);
  };
  VJson::Value object;
  object.AddJsonValue("count", difference(Count));
  if (change.key.IsStep()) {
    object.AddJsonValue("failureRate", difference(Rate));
  }
  AddValue(object, "median", difference(Median), change.isMasked);
  AddValue(object, "p95", difference(Percentile95), change.isMasked);
  return object;
}

std::string JsonLineOf(const Change& change) {
  VJson::Value object;
  AddKey(object, change.key, Period::kNone);
  object.AddJsonValue("verdict", NameOf(change.verdict));
  if (change.before) {
    object.Add("old", SideObject(change, *change.before));
  }
  if (change.after) {
    object.Add("new", SideObject(change, *change.after));
  }
  if (change.before && change.after) {
    object.Add("change", DifferenceObject(change));
  }
  if (change.verdict == Verdict::kSame || change.verdict == Verdict::kWorse) {
    object.AddJsonValue("medianGrew", change.medianGrew);
    object.AddJsonValue("failureRateGrew", change.failureRateGrew);
  }
  return JsonText(object) + '\n';
}

std::string CsvLineOf(const Change& change) {
  const SeriesKey& key = change.key;
  std::vector<std::string> fields = {key.IsStep() ? "step" : "metric",
                                     key.IsStep() ? "" : std::to_string(*key.id), key.name,
                                     NameOf(change.verdict)};
  const auto add = [&](Measure measure, bool isShown) {
    for (const double value : {Before(change, measure), After(change, measure)}) {
      fields.push_back(isShown ? ExactValue(value) : std::string(kMask));
    }
  };
  add(Count, true);
  add(
      key.IsStep() ? Rate : [](const Figures&) { return kNone; }, true);
  add(Median, !change.isMasked);
  add(Percentile95, !change.isMasked);
  add(RelativeError, true);
  return CsvLine({fields.begin(), fields.end()});
}

}  // namespace

void WriteChanges(const std::vector<Change>& changes, const Rule& rule, const std::string& format) {
  if (format == "table") {
    WriteTables(changes, rule);
    return;
  }
  if (format == "csv") {
    Write(CsvLine({"kind", "id", "name", "verdict", "oldCount", "newCount", "oldFailureRate",
                   "newFailureRate", "oldMedian", "newMedian", "oldP95", "newP95",
                   "oldRelativeError", "newRelativeError"}));
  }
  for (const Change& change : changes) {
    Write(format == "csv" ? CsvLineOf(change) : JsonLineOf(change));
  }
}

}  // namespace vmetrics
