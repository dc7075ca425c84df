#include "stats/SummaryOutput.h"

#include <fmt/format.h>

#include <algorithm>

#include "Csv.h"
#include "JsonText.h"
#include "Table.h"

namespace vmetrics {

namespace {

constexpr const char* kIndentation = "  ";
constexpr const char* kDeepIndentation = "    ";

// A table of steps, one of metrics ----------------------------------------------------------------

std::vector<std::string> ShownValues(const Summary& summary) {
  const Figures& figures = summary.figures;
  if (summary.isMasked) {
    return std::vector<std::string>(5, std::string(kMask));
  }
  const double error = figures.relativeError;
  return {ShownValue(figures.least), ShownValue(figures.median, error),
          ShownValue(figures.percentile95, error), ShownValue(figures.percentile99, error),
          ShownValue(figures.greatest)};
}

std::string ShownErrorCodes(const Figures& figures) {
  std::string text = "error codes: ";
  const char* separator = "";
  for (const auto& [code, count] : figures.errorCodes) {
    text += fmt::format("{}{} ({})", separator, code, count);
    separator = ", ";
  }
  if (figures.otherFailures > 0) {
    text += fmt::format("{}others ({})", separator, figures.otherFailures);
  }
  return text;
}

void AddNotes(Table& table, const Summary& summary) {
  const Figures& figures = summary.figures;
  if (figures.failures > 0) {
    table.AddLine(kDeepIndentation + ShownErrorCodes(figures));
  }
  if (figures.unusable > 0) {
    table.AddLine(fmt::format("{}without a usable {}: {}", kDeepIndentation,
                              summary.key.IsStep() ? "duration" : "value", figures.unusable));
  }
}

void AddSummary(Table& table, const Summary& summary, std::string label) {
  const Figures& figures = summary.figures;
  std::vector<std::string> cells = {std::move(label), std::to_string(figures.count)};
  if (summary.key.IsStep()) {
    cells.push_back(std::to_string(figures.failures));
    cells.push_back(ShownRate(figures.FailureRate()) + "%");
  }
  for (std::string& text : ShownValues(summary)) {
    cells.push_back(std::move(text));
  }
  table.AddRow(std::move(cells), figures.failures > 0 ? Style::kRed : Style::kPlain);
  AddNotes(table, summary);
}

bool AreOfOneSeries(const SeriesKey& a, const SeriesKey& b) {
  return a.id == b.id && a.name == b.name;
}

using Summaries = std::vector<Summary>::const_iterator;

void WriteTable(Table table, Summaries begin, Summaries end, Period period) {
  for (Summaries summary = begin; summary != end; ++summary) {
    const SeriesKey& key = summary->key;
    if (period == Period::kNone) {
      AddSummary(table, *summary, LabelOf(key));
      continue;
    }
    if (summary == begin || !AreOfOneSeries(key, std::prev(summary)->key)) {
      table.AddLine(LabelOf(key));
    }
    AddSummary(table, *summary, kIndentation + PeriodText(period, key.period));
  }
  Write(table.Text(OutputWidth()));
}

void WriteTables(const std::vector<Summary>& summaries, Period period) {
  const Summaries metrics =
      std::find_if(summaries.begin(), summaries.end(),
                   [](const Summary& summary) { return !summary.key.IsStep(); });
  if (metrics != summaries.begin()) {
    WriteTable(
        Table({"STEP (ms)", "COUNT", "FAILED", "RATE", "MIN", "MEDIAN", "P95", "P99", "MAX"}),
        summaries.begin(), metrics, period);
  }
  if (metrics != summaries.begin() && metrics != summaries.end()) {
    Write("\n");
  }
  if (metrics != summaries.end()) {
    WriteTable(Table({"METRIC", "COUNT", "MIN", "MEDIAN", "P95", "P99", "MAX"}), metrics,
               summaries.end(), period);
  }
  double error = 0;
  for (const Summary& summary : summaries) {
    error = std::max(error, summary.figures.relativeError);
  }
  if (error > 0) {
    Write('\n' + ErrorLegend(error));
  }
}

// Formats for programs ----------------------------------------------------------------------------

VJson::Value ErrorCodesObject(const Figures& figures) {
  VJson::Value codes;
  for (const auto& [code, count] : figures.errorCodes) {
    codes.AddJsonValue(std::to_string(code), count);
  }
  if (figures.otherFailures > 0) {
    codes.AddJsonValue("others", figures.otherFailures);
  }
  return codes;
}

std::string JsonLineOf(const Summary& summary, Period period) {
  const Figures& figures = summary.figures;
  VJson::Value object;
  AddKey(object, summary.key, period);
  object.AddJsonValue("count", figures.count);
  if (summary.key.IsStep()) {
    object.AddJsonValue("failures", figures.failures);
    object.Add("errorCodes", ErrorCodesObject(figures));
  }
  object.AddJsonValue("unusable", figures.unusable);
  AddValue(object, "min", figures.least, summary.isMasked);
  AddValue(object, "median", figures.median, summary.isMasked);
  AddValue(object, "p95", figures.percentile95, summary.isMasked);
  AddValue(object, "p99", figures.percentile99, summary.isMasked);
  AddValue(object, "max", figures.greatest, summary.isMasked);
  object.AddJsonValue("relativeError", figures.relativeError);
  return JsonText(object) + '\n';
}

std::string CsvErrorCodes(const Figures& figures) {
  std::string text;
  for (const auto& [code, count] : figures.errorCodes) {
    text += fmt::format("{}{}:{}", text.empty() ? "" : " ", code, count);
  }
  if (figures.otherFailures > 0) {
    text += fmt::format("{}others:{}", text.empty() ? "" : " ", figures.otherFailures);
  }
  return text;
}

std::string CsvLineOf(const Summary& summary, Period period) {
  const SeriesKey& key = summary.key;
  const Figures& figures = summary.figures;
  const auto value = [&summary](double number) {
    return summary.isMasked ? std::string(kMask) : ExactValue(number);
  };
  return CsvLine({key.IsStep() ? "step" : "metric", key.IsStep() ? "" : std::to_string(*key.id),
                  key.name, period == Period::kNone ? "" : PeriodText(period, key.period),
                  std::to_string(figures.count),
                  key.IsStep() ? std::to_string(figures.failures) : "",
                  std::to_string(figures.unusable), value(figures.least), value(figures.median),
                  value(figures.percentile95), value(figures.percentile99), value(figures.greatest),
                  ExactValue(figures.relativeError), CsvErrorCodes(figures)});
}

}  // namespace

void WriteSummaries(const std::vector<Summary>& summaries, Period period,
                    const std::string& format) {
  if (format == "table") {
    WriteTables(summaries, period);
    return;
  }
  if (format == "csv") {
    Write(CsvLine({"kind", "id", "name", "period", "count", "failures", "unusable", "min", "median",
                   "p95", "p99", "max", "relativeError", "errorCodes"}));
  }
  for (const Summary& summary : summaries) {
    Write(format == "csv" ? CsvLineOf(summary, period) : JsonLineOf(summary, period));
  }
}

}  // namespace vmetrics
