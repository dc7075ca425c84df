#include "Operations.h"

#include <cstddef>
#include <cstring>

#include "Records.h"
#include "VIpc.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr int kFirstMetric = 0x40000000;

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

void RenderNumeric() { const std::string line = VMetrics::GetBaseMetricsString(NumericRecord()); }

const std::vector<char>& NumericMessage() {
  static const std::vector<char> bytes = [] {
    constexpr std::size_t kRecordSize = sizeof(VMetricsData) + sizeof(int);
    std::vector<char> message(sizeof(VMessage) + kRecordSize);
    std::memcpy(message.data() + sizeof(VMessage), NumericRecord(), kRecordSize);
    return message;
  }();
  return bytes;
}

void RenderMessage() {
  const auto* const message = reinterpret_cast<const VMessage*>(NumericMessage().data());
  const std::string line = VMetrics::FmtMetricsMsgToString(message);
}

template <std::size_t kPayload>
const VMetricsDataString* StringRecord() {
  static const std::vector<char> bytes = StringRecordBytes(Payload(kPayload));
  return reinterpret_cast<const VMetricsDataString*>(bytes.data());
}

template <std::size_t kPayload>
void RenderString() {
  const std::string line = VMetrics::GetStringBaseMetricsString(StringRecord<kPayload>());
}

void RenderChecked() {
  const std::string line = VMetrics::StringFmtMetricsMsgToString(StringRecord<16>());
}

void RenderValueById() {
  const int framesASecond = 60;
  const std::string text =
      VMetrics::ToString(0x120B0001, reinterpret_cast<const char*>(&framesASecond));
}

void RenderValueByEventId() {
  const std::string text = VMetrics::ToString("nox_user_connect", "{\"state\":\"connected\"}");
}

void ReportUsbDriverError() { VMetrics::SendUsbDriverErrorMetrics("usb"); }

void ReportString() {
  SendStringDataToMetric("nox_user_connect", "zelviewer", "[1, 2, 3]", 9,
                         VMETRICS_HEADER_INDEX_CONNECTION);
}

void ReportBizbox() { SendBizboxInsToMetric(); }

void ReportConnecting() { SendConnectVagToMetric(1700000000000, 1); }

void ReportConnected() {
  static const std::string first = "gateway";
  static const std::string second = "answered";
  SendConnectVagToCommonMetric(first, second, true);
}

void ReportSlowModule() {
  static VMessage message{};
  SendModuleProcessTimeoutMetric("display", "Resize", &message, 250);
}

void ReportTransport() { SendTransChangeToMetrics("bandwidth", 7, 35); }

void WriteReadyText() {
  static const std::string text = VMetrics::GetBaseMetricsString(NumericRecord());
  VLogger::GetInstance().Metrics("%s", text.c_str());
}

void MakeIdentifier() { const std::string identifier = VMetrics::GenerateUuid(); }

void ReadParent() { const std::string parent = VMetrics::GetCurrentParentSpanId(); }

void TraceStep() {
  VMetrics::InsertRecord(0, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
  VMetrics::InsertRecord(1, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
}

void RegisterMetric() { VMetrics::RegisterMetricsDataType(metrics.Next()); }

void RegisterEvent() { VMetrics::RegisterMetricsStringDataType(events.Next()); }

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
  return VPlatformConfig::SetMetricsFile(directory + "/metrics.log") &&
         VPlatformConfig::SetLockFileDirectory(directory);
}
