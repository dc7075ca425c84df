#include "Operations.h"

#include <cstddef>
#include <cstring>
#include <filesystem>

#include "Records.h"
#include "VIpc.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr int kFirstMetric = 0x40000000;
constexpr std::size_t kIdentifierSize = 36;

/// Definitions of metrics that are not in the catalogue; registering one cuts it up.
class Definitions {
 public:
  void Add(const std::string& text) { texts_.push_back(text); }
  char* Next() { return texts_[next_++].data(); }

 private:
  std::vector<std::string> texts_;
  std::size_t next_ = 0;
};

Definitions metrics;
Definitions events;

bool RenderNumeric() { return !VMetrics::GetBaseMetricsString(NumericRecord()).empty(); }

const std::vector<char>& NumericMessage() {
  static const std::vector<char> bytes = [] {
    constexpr std::size_t kRecordSize = sizeof(VMetricsData) + sizeof(int);
    std::vector<char> message(sizeof(VMessage) + kRecordSize);
    std::memcpy(message.data() + sizeof(VMessage), NumericRecord(), kRecordSize);
    return message;
  }();
  return bytes;
}

bool RenderMessage() {
  const auto* const message = reinterpret_cast<const VMessage*>(NumericMessage().data());
  return !VMetrics::FmtMetricsMsgToString(message).empty();
}

template <std::size_t kPayload>
const VMetricsDataString* StringRecord() {
  static const std::vector<char> bytes = StringRecordBytes(Payload(kPayload));
  return reinterpret_cast<const VMetricsDataString*>(bytes.data());
}

template <std::size_t kPayload>
bool RenderString() {
  return !VMetrics::GetStringBaseMetricsString(StringRecord<kPayload>()).empty();
}

bool RenderChecked() { return !VMetrics::StringFmtMetricsMsgToString(StringRecord<16>()).empty(); }

bool RenderValueById() {
  const int framesASecond = 60;
  return !VMetrics::ToString(0x120B0001, reinterpret_cast<const char*>(&framesASecond)).empty();
}

bool RenderValueByEventId() {
  return !VMetrics::ToString("nox_user_connect", "{\"state\":\"connected\"}").empty();
}

bool ReportUsbDriverError() { return VMetrics::SendUsbDriverErrorMetrics("usb") == VMETRICS_OK; }

bool ReportString() {
  return SendStringDataToMetric("nox_user_connect", "zelviewer", "[1, 2, 3]", 9,
                                VMETRICS_HEADER_INDEX_CONNECTION) == VMETRICS_OK;
}

bool ReportBizbox() { return SendBizboxInsToMetric() == VMETRICS_OK; }

bool ReportConnecting() { return SendConnectVagToMetric(1700000000000, 1) == VMETRICS_OK; }

bool ReportConnected() {
  static const std::string first = "gateway";
  static const std::string second = "answered";
  return SendConnectVagToCommonMetric(first, second, true) == VMETRICS_OK;
}

bool ReportSlowModule() {
  static VMessage message{};
  return SendModuleProcessTimeoutMetric("display", "Resize", &message, 250) == VMETRICS_OK;
}

bool ReportTransport() { return SendTransChangeToMetrics("bandwidth", 7, 35) == VMETRICS_OK; }

bool WriteReadyText() {
  static const std::string text = VMetrics::GetBaseMetricsString(NumericRecord());
  VLogger::GetInstance().Metrics("%s", text.c_str());
  return true;  // It tells nobody; PrepareOperations has seen that lines arrive.
}

bool MakeIdentifier() { return VMetrics::GenerateUuid().size() == kIdentifierSize; }

bool ReadParent() { return VMetrics::GetCurrentParentSpanId().size() == kIdentifierSize; }

bool TraceStep() {
  const auto report = [](int status) {
    return VMetrics::InsertRecord(status, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
  };
  return report(0) == VMETRICS_OK && report(1) == VMETRICS_OK;
}

bool RegisterMetric() { return VMetrics::RegisterMetricsDataType(metrics.Next()) == VMETRICS_OK; }

bool RegisterEvent() {
  return VMetrics::RegisterMetricsStringDataType(events.Next()) == VMETRICS_OK;
}

}  // namespace

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations = {
      {"GetBaseMetricsString", RenderNumeric},
      {"FmtMetricsMsgToString", RenderMessage},
      {"GetStringBaseMetricsString_short", RenderString<16>},
      {"GetStringBaseMetricsString_220_bytes", RenderString<220>},
      {"GetStringBaseMetricsString_60_KB", RenderString<60000>},
      {"StringFmtMetricsMsgToString_short", RenderChecked},
      {"ToString_numeric_ID", RenderValueById},
      {"ToString_event_ID", RenderValueByEventId},
      {"SendUsbDriverErrorMetrics", ReportUsbDriverError},
      {"SendStringDataToMetric", ReportString},
      {"SendBizboxInsToMetric", ReportBizbox},
      {"SendConnectVagToMetric", ReportConnecting},
      {"SendConnectVagToCommonMetric", ReportConnected},
      {"SendModuleProcessTimeoutMetric", ReportSlowModule},
      {"SendTransChangeToMetrics", ReportTransport},
      {"VLogger_Metrics", WriteReadyText},
      {"GenerateUuid", MakeIdentifier},
      {"GetCurrentParentSpanId", ReadParent},
      {"InsertRecord_start_and_end", TraceStep},
      {"RegisterMetricsDataType", RegisterMetric},
      {"RegisterMetricsStringDataType", RegisterEvent},
  };
  return operations;
}

bool PrepareOperations(const std::string& directory, int calls) {
  for (int i = 0; i < calls; ++i) {
    const std::string number = std::to_string(kFirstMetric + i);
    metrics.Add(number + ";int;metricName;0");
    events.Add("event_" + number + ";json;eventName;0");
  }
  const std::string lines = directory + "/metrics.log";
  return VPlatformConfig::SetMetricsFile(lines) &&
         VPlatformConfig::SetLockFileDirectory(directory) &&
         TraceStep() &&  // A step must have ended for a parent to be there.
         std::filesystem::file_size(lines) > 0;
}
