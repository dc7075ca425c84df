#include "RecordMetric.h"

#include <VIpc.h>
#include <fmt/format.h>

#include <cstring>

#include "MetricId.h"
#include "MetricLookup.h"
#include "Text.h"

namespace vmetrics {

namespace {

std::uint32_t MetricId(RecordKind kind, std::string_view record) {
  const std::size_t start = kind == RecordKind::kMessage ? sizeof(VMessage) : 0;
  return NumberAt(record, start + offsetof(VMetricsData, eventId));
}

std::string_view EventId(std::string_view record) {
  return TextAt(record, offsetof(VMetricsDataString, eventId));
}

}  // namespace

std::uint32_t NumberAt(std::string_view record, std::size_t offset) {
  std::uint32_t number;
  std::memcpy(&number, record.data() + offset, sizeof number);
  return number;
}

std::string_view TextAt(std::string_view record, std::size_t offset) {
  return UpToNul(record.substr(offset));
}

std::string IdOf(RecordKind kind, std::string_view record) {
  if (kind == RecordKind::kString) {
    return fmt::format("\"{}\"", Printable(EventId(record)));
  }
  const std::uint32_t id = MetricId(kind, record);
  return fmt::format("{} ({})", id, HexadecimalId(static_cast<int>(id)));
}

const MetricEntry* MetricOf(RecordKind kind, std::string_view record) {
  return kind == RecordKind::kString ? FindEventMetric(EventId(record))
                                     : FindNumericMetric(static_cast<int>(MetricId(kind, record)));
}

std::string_view UpToNul(std::string_view value) { return value.substr(0, value.find('\0')); }

}  // namespace vmetrics
