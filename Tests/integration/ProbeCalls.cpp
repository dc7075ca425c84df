#include "ProbeCalls.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "VIpc.h"
#include "VMetrics.h"

const char kHardText[] = "\"\\\b\f\n\r\t\x01\x1F\x7F/%s%n\xC3\xA4\xF0\x9F\x98\x80\xFF";

namespace {

/// The bytes of something packed, followed by a value.
template <typename Header, typename Value>
std::string Packed(const Header& header, const Value& value) {
  std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
  return bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

std::string NumericRecord(std::uint32_t id, int value) {
  VMetricsData header{};
  header.terminalId = 1234567;
  header.eventId = id;
  header.dataLength = sizeof value;
  return Packed(header, value);
}

std::string TextRecord(const char* eventId, const std::string& value) {
  VMetricsDataString header{};
  header.terminalId = 1234567;
  header.type = 7654321;
  std::strcpy(header.eventId, eventId);
  std::strcpy(header.userName, kHardText);
  std::strcpy(header.transactionId, "transaction");
  std::strcpy(header.businessType, "business");
  std::strcpy(header.serviceName, "service");
  header.dataLength = static_cast<std::uint32_t>(value.size());
  return std::string(reinterpret_cast<const char*>(&header), sizeof header) + value;
}

/// The carrier of a record, its header filled with numbers that show.
std::string Message(const std::string& record) {
  VMessage header{};
  header.srcModuleId = 1234567;
  header.dstModuleId = -1234567;
  header.msgType = 2345678;
  return std::string(reinterpret_cast<const char*>(&header), sizeof header) + record;
}

constexpr int kFrameRate = 302710785;
constexpr int kDiskUsage = 0x2F0A0002;  // A number with a fraction.

}  // namespace

std::vector<std::string> RenderEverything() {
  const int number = 1234567;
  const double fraction = 1234567.5;
  const std::string numeric = NumericRecord(kFrameRate, number);
  const std::string message = Message(numeric);
  const std::string json =
      TextRecord("nox_user_connect", R"({"number": 1234567.25, "list": [1, 2]})");
  const std::string text = TextRecord("VMETRICS_USB_DRIVER_ERROR", kHardText);
  const auto* jsonRecord = reinterpret_cast<const VMetricsDataString*>(json.data());
  const auto* textRecord = reinterpret_cast<const VMetricsDataString*>(text.data());
  return {VMetrics::ToString(kDiskUsage, reinterpret_cast<const char*>(&fraction)),
          VMetrics::ToString("VMETRICS_USB_DRIVER_ERROR", kHardText),
          VMetrics::GetBaseMetricsString(reinterpret_cast<const VMetricsData*>(numeric.data())),
          VMetrics::FmtMetricsMsgToString(reinterpret_cast<const VMessage*>(message.data())),
          VMetrics::GetStringBaseMetricsString(jsonRecord),
          VMetrics::StringFmtMetricsMsgToString(textRecord)};
}

std::vector<int> ReportEverything() {
  std::string message = Message("");
  const std::string payload = R"({"number":1234567})";
  std::vector<int> results = {
      SendStringDataToMetric("nox_user_connect", kHardText, payload.data(),
                             static_cast<int>(payload.size()), VMETRICS_HEADER_INDEX_CONNECTION),
      SendBizboxInsToMetric(),
      SendConnectVagToMetric(1234567, 0),
      SendConnectVagToCommonMetric(kHardText, kHardText, false),
      SendModuleProcessTimeoutMetric(kHardText, kHardText,
                                     reinterpret_cast<VMessage*>(message.data()), 4294967295U),
      SendTransChangeToMetrics(kHardText, -1234567, 1234567),
      VMetrics::SendUsbDriverErrorMetrics("service")};
  results.erase(std::remove(results.begin(), results.end(), VMETRICS_OK), results.end());
  return results;
}

bool TraceStep(const std::string& id, const std::string& step) {
  const auto event = [&](int status) {
    return VMetrics::InsertRecord(status, id.c_str(), kHardText, step.c_str(), "ParentSpanId",
                                  1234567) == VMETRICS_OK;
  };
  return event(0) && event(1);
}

void CallEverything(const std::string& transactionId) {
  for (const std::string& text : RenderEverything()) {
    Say("rendered", text);
  }
  for (const int result : ReportEverything()) {
    Say("failed", std::to_string(result));
  }
  if (!TraceStep(transactionId, kHardText)) {
    Say("failed", "step");
  }
  Say("identifier", VMetrics::GenerateUuid());
  Say("parent", VMetrics::GetCurrentParentSpanId());
}

void Say(const char* name, const std::string& value) {
  std::printf("%s=%s\n", name, value.c_str());
  std::fflush(stdout);
}
