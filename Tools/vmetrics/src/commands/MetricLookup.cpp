#include "MetricLookup.h"

#include <charconv>
#include <string>

namespace vmetrics {

std::optional<int> NumericId(std::string_view id) {
  int number;
  const char* end = id.data() + id.size();
  const std::from_chars_result result = std::from_chars(id.data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

const MetricEntry* FindNumericMetric(int id) {
  const MetricsMap& metrics = VMetrics::GetMetricsMap();
  const auto found = metrics.find(id);
  return found == metrics.end() ? nullptr : &found->second;
}

const MetricEntry* FindEventMetric(std::string_view eventId) {
  static thread_local std::string key;  // Keeps its memory; the map asks for a string.
  key.assign(eventId);
  const MetricsStringMap& metrics = VMetrics::GetMetricsStringMap();
  const auto found = metrics.find(key);
  return found == metrics.end() ? nullptr : &found->second;
}

bool IsPrivate(const MetricEntry& metric) {
  constexpr std::size_t kFlag = 2;
  return metric.at(kFlag) == "1";
}

}  // namespace vmetrics
