#include "stats/FigureTexts.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <cmath>
#include <ctime>

#include "Text.h"

namespace vmetrics {

namespace {

constexpr double kLeastShortened = 1e7;
constexpr double kMostShortened = 1e18;

std::string WithUnit(double value) {
  double scaled = value / 1e6;
  const char* unit = "MGTP";
  for (; std::fabs(scaled) >= 1000 && unit[1] != '\0'; ++unit) {
    scaled /= 1000;
  }
  return fmt::format("{:.4g}{}", scaled, *unit);
}

}  // namespace

std::string ShownValue(double value, double relativeError) {
  if (relativeError > 0) {
    return '~' + ShownValue(value);
  }
  if (std::isnan(value)) {
    return "-";
  }
  if (std::fabs(value) >= kLeastShortened) {
    return std::fabs(value) < kMostShortened ? WithUnit(value) : fmt::format("{:.3g}", value);
  }
  return std::trunc(value) == value ? fmt::format("{:.0f}", value) : fmt::format("{:.5g}", value);
}

std::string ExactValue(double value) {
  return std::isnan(value) ? std::string() : fmt::format("{}", value);
}

std::string ShownRate(double rate) {
  return std::isnan(rate) ? "-" : fmt::format("{:.1f}", rate * 100);
}

std::string ErrorLegend(double greatestRelativeError) {
  return greatestRelativeError == 0
             ? std::string()
             : fmt::format("~ within {:.2g}%: there are too many values to count each\n",
                           greatestRelativeError * 100);
}

std::string LabelOf(const SeriesKey& key) {
  const std::string name = key.name.empty() ? "\"\"" : Printable(key.name);
  return key.IsStep() ? name : fmt::format("{} ({})", name, *key.id);
}

std::string PeriodText(Period period, std::int64_t index) {
  if (index == SeriesKey::kTimeless) {
    return "no time";
  }
  constexpr std::time_t kSeconds = 3600;
  return period == Period::kHour ? fmt::format("{:%Y-%m-%d %H:00}", fmt::gmtime(index * kSeconds))
                                 : fmt::format("{:%Y-%m-%d}", fmt::gmtime(index * 24 * kSeconds));
}

void AddKey(VJson::Value& object, const SeriesKey& key, Period period) {
  if (key.IsStep()) {
    object.AddJsonValue("step", key.name);
  } else {
    object.AddJsonValue("metric", std::to_string(*key.id));
    object.AddJsonValue("name", key.name);
  }
  if (period != Period::kNone) {
    object.AddJsonValue("period", PeriodText(period, key.period));
  }
}

void AddValue(VJson::Value& object, const char* name, double value, bool isMasked) {
  if (isMasked) {
    object.AddJsonValue(name, std::string(kMask));
  } else {
    object.AddJsonValue(name, value);
  }
}

}  // namespace vmetrics
