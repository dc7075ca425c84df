// The general submission: one event, packed, rendered and written to the metrics channel.

#include <cstddef>
#include <cstdint>
#include <string>

#include "Common/Log.h"
#include "Common/ReportFailure.h"
#include "Common/StringRecord.h"
#include "VLogger.h"
#include "VMetrics.h"

int SendStringDataToMetric(std::string eventId, std::string serviceName, const char* data,
                           int length, VMetricsHeaderIndexType headerIndexType) {
  using namespace vmetrics;
  if (length < 0) {
    return ReportFailure(kVUpMetricsSource);
  }
  StringRecord record(static_cast<std::size_t>(length));
  record.SetType(headerIndexType);
  if (!record.SetEventId(eventId)) {
    return ReportFailure(kVUpMetricsSource);
  }
  if (!record.SetServiceName(serviceName)) {
    return ReportFailure(kVUpMetricsSource);
  }
  if (!record.SetData(data, static_cast<std::uint32_t>(length))) {
    return ReportFailure(kVUpMetricsSource);
  }
  const std::string text = VMetrics::StringFmtMetricsMsgToString(record.Get());
  if (text.empty()) {
    return ReportFailure(kVUpMetricsSource);
  }
  VLogger::GetInstance().Metrics("%s", text.c_str());
  return VMETRICS_OK;
}
