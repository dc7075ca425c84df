// The report of USB drivers that could not be initialised. It submits its event by itself, unlike
// the other reporters: it wants a service name, and its failures are its own in the log.

#include <cstdint>
#include <string>

#include "Common/Log.h"
#include "Common/ReportFailure.h"
#include "Common/StringRecord.h"
#include "VLogger.h"
#include "VMetrics.h"

int VMetrics::SendUsbDriverErrorMetrics(const std::string& serviceName) {
  using namespace vmetrics;
  if (serviceName.empty()) {
    return ReportFailure(kUsbMetricsSource);
  }
  const std::string eventId = "VMETRICS_USB_DRIVER_ERROR";
  const std::string data = "Init drivers error.";
  StringRecord record(data.size());
  record.SetType(VMETRICS_HEADER_INDEX_FRAMEWORK);
  if (!record.SetEventId(eventId)) {
    return ReportFailure(kUsbMetricsSource);
  }
  if (!record.SetServiceName(serviceName)) {
    return ReportFailure(kUsbMetricsSource);
  }
  if (!record.SetData(data.data(), static_cast<std::uint32_t>(data.size()))) {
    return ReportFailure(kUsbMetricsSource);
  }
  const std::string text = StringFmtMetricsMsgToString(record.Get());
  if (text.empty()) {
    return ReportFailure(kUsbMetricsSource);
  }
  VLogger::GetInstance().Metrics("%s", text.c_str());
  return VMETRICS_OK;
}
