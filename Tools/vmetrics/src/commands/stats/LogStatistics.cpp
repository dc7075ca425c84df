#include "stats/LogStatistics.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "MetricLookup.h"
#include "StepResult.h"

namespace vmetrics {

namespace {

/// A step that ends before it has begun, as its clock was set back, has used just below 2^64.
std::optional<double> DurationOf(const LogEntry& entry) {
  const Member* usedTime = entry.FindInArgs("usedTime");
  const auto duration = usedTime == nullptr ? std::nullopt : usedTime->Unsigned();
  if (!duration || *duration > std::numeric_limits<std::int64_t>::max()) {
    return std::nullopt;
  }
  return static_cast<double>(*duration);
}

std::optional<std::int64_t> IntegerOf(const Member* member) {
  return member == nullptr ? std::nullopt : member->Integer();
}

void AddValue(Series& series, std::optional<double> value) {
  ++series.count;
  if (value) {
    series.values.Add(*value);
  } else {
    ++series.unusable;
  }
}

bool IsNameOf(const MetricEntry* metric, std::string_view key) {
  constexpr std::size_t kName = 1;
  return metric != nullptr && metric->at(kName) == key;
}

template <typename Number>
void AppendBytes(std::string& bytes, Number number) {
  char raw[sizeof number];
  std::memcpy(raw, &number, sizeof number);
  bytes.append(raw, sizeof raw);
}

}  // namespace

void LogStatistics::Add(const LogEntry& entry) {
  if (entry.IsStep()) {
    const std::string_view name = entry.FindInArgs("stepName")->text;
    if (IsWanted(name)) {
      AddStep(entry, name);
    }
  } else if (const std::optional<int> id = NumericId(entry.Text("eventId"))) {
    if (IsWanted(*id)) {
      AddMetric(entry, *id);
    }
  }
}

std::vector<const LogStatistics::Named*> LogStatistics::Sorted() const {
  std::vector<const Named*> sorted;
  sorted.reserve(series_.size());
  for (const auto& [lookup, named] : series_) {
    sorted.push_back(&named);
  }
  std::sort(sorted.begin(), sorted.end(),
            [](const Named* a, const Named* b) { return a->first < b->first; });
  return sorted;
}

void LogStatistics::AddStep(const LogEntry& entry, std::string_view name) {
  Series* series = SeriesOf(std::nullopt, name, PeriodOf(entry));
  if (series == nullptr) {
    return;
  }
  AddValue(*series, DurationOf(entry));
  const StepResult result = StepResultOf(entry);
  if (result.isFailed) {
    ++series->failures;
    series->errorCodes.Add(result.FailureCode());
  }
}

void LogStatistics::AddMetric(const LogEntry& entry, int id) {
  const MetricEntry* metric = FindNumericMetric(id);
  for (const Member& member : entry.args) {
    if (member.kind != JsonKind::kNumber) {
      continue;
    }
    const bool isShown = IsNameOf(metric, member.key) || !privacy_.IsMasked(entry.Text("eventId"));
    if (Series* series = SeriesOf(id, isShown ? member.key : kMask, PeriodOf(entry))) {
      AddValue(*series, member.Double());
    }
  }
}

bool LogStatistics::IsWanted(std::string_view step) const {
  const auto& steps = choice_.steps;
  return (steps.empty() && choice_.metrics.empty()) ||
         std::find(steps.begin(), steps.end(), step) != steps.end();
}

bool LogStatistics::IsWanted(int metric) const {
  const auto& metrics = choice_.metrics;
  return (metrics.empty() && choice_.steps.empty()) ||
         std::find(metrics.begin(), metrics.end(), metric) != metrics.end();
}

std::int64_t LogStatistics::PeriodOf(const LogEntry& entry) const {
  constexpr std::int64_t kHour = 3600000;  // In milliseconds, as timestamps are.
  constexpr std::int64_t kYear10000 = 253402300800000;
  if (choice_.period == Period::kNone) {
    return SeriesKey::kTimeless;
  }
  const std::int64_t time = IntegerOf(entry.Find("timestamp")).value_or(-1);
  if (time < 0 || time >= kYear10000) {
    return SeriesKey::kTimeless;
  }
  return time / (choice_.period == Period::kHour ? kHour : 24 * kHour);
}

Series* LogStatistics::SeriesOf(std::optional<int> id, std::string_view name, std::int64_t period) {
  lookup_.clear();
  AppendBytes(lookup_, id ? std::int64_t{*id} : std::numeric_limits<std::int64_t>::min());
  AppendBytes(lookup_, period);
  lookup_ += name;
  const auto found = series_.find(lookup_);
  Series* series = found == series_.end() ? NewSeries(id, name, period) : &found->second.second;
  leftOut_ += series == nullptr ? 1 : 0;
  return series;
}

Series* LogStatistics::NewSeries(std::optional<int> id, std::string_view name,
                                 std::int64_t period) {
  if (series_.size() == kMostSeries || name.size() > nameRoom_) {
    return nullptr;
  }
  nameRoom_ -= name.size();
  Named named{{id, std::string(name), period}, {0, 0, 0, Distribution(budget_), {}}};
  return &series_.emplace(lookup_, std::move(named)).first->second.second;
}

}  // namespace vmetrics
