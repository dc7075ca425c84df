#include "RecordKind.h"

#include <VIpc.h>
#include <VMetrics.h>

#include <cstring>

namespace vmetrics {

std::size_t HeaderSize(RecordKind kind) {
  switch (kind) {
    case RecordKind::kString:
      return sizeof(VMetricsDataString);
    case RecordKind::kMessage:
      return sizeof(VMessage) + sizeof(VMetricsData);
    case RecordKind::kNumeric:
      break;
  }
  return sizeof(VMetricsData);
}

std::uint32_t AnnouncedLength(RecordKind kind, const char* record) {
  std::uint32_t length;  // In all of them the last field of the header.
  std::memcpy(&length, record + HeaderSize(kind) - sizeof length, sizeof length);
  return length;
}

std::string Render(RecordKind kind, const char* record) {
  switch (kind) {
    case RecordKind::kString:
      return VMetrics::GetStringBaseMetricsString(
          reinterpret_cast<const VMetricsDataString*>(record));
    case RecordKind::kMessage:
      return VMetrics::FmtMetricsMsgToString(reinterpret_cast<const VMessage*>(record));
    case RecordKind::kNumeric:
      break;
  }
  return VMetrics::GetBaseMetricsString(reinterpret_cast<const VMetricsData*>(record));
}

}  // namespace vmetrics
