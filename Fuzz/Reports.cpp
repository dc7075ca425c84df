// The other reporters, with texts and numbers from anywhere.

#include <cstddef>
#include <cstdint>
#include <string>

#include "FakePlatform.h"
#include "Input.h"
#include "PreparedMetrics.h"
#include "RecordModel.h"
#include "VMetrics.h"
#include "Verdict.h"

namespace {

using Oracle::Integer;
using Oracle::Text;
using Oracle::Unsigned;

struct Event {
  const char* id;
  const char* service;
  std::uint32_t type;
};

/// The line of an event with this payload.
std::string EventLine(const Event& event, const Oracle::Object& payload, std::uint64_t tick) {
  return Oracle::EventLine(event.id, event.service, event.type, Oracle::Line(payload), tick,
                           PreparedMetrics());
}

void RequireReported(int status, const std::string& line) {
  Require(status == (line.empty() ? -10000 : 0), "the status");
  Require(FakePlatform::MetricsLines().size() == (line.empty() ? 0 : 1), "the number of lines");
  Require(FakePlatform::LogLines().empty() || line.empty(), "nothing logged of a line written");
  if (!line.empty()) {
    RequireEqual(FakePlatform::MetricsLines()[0].format, "%s", "the format");
    RequireEqual(FakePlatform::MetricsLines()[0].text, line, "the line");
  }
}

void ReportConnection(Input& input, std::uint64_t tick) {
  const std::uint64_t start = input.Number(8);
  const int success = input.Int();
  Oracle::Object step = {{"stepName", Text("FirstPack")},     {"source", Text("zelviewer")},
                         {"parentStepName", Text("Connect")}, {"isSuccess", Integer(success)},
                         {"startTime", Unsigned(start)},      {"endTime", Unsigned(tick)},
                         {"usedTime", Unsigned(tick - start)}};
  if (success == 0) {
    step.push_back({"errorMsg", Text("timeout")});
  }
  RequireReported(SendConnectVagToMetric(start, success),
                  EventLine({"nox_user_connect", "zelviewer", 2}, step, tick));
}

void ReportOperation(Input& input, std::uint64_t tick) {
  const std::string first = input.Text();
  const std::string second = input.Text();
  const bool success = input.Byte() % 2 == 1;
  const Oracle::Object operation = {{"optName", Text("尝试连接vag")},
                                    {"optType", Text("自动流程")},
                                    {"optPosition", Text("ZELVIEWER")},
                                    {"optState", Text(success ? "success" : "fail")},
                                    {"optDesc", Text(first + ":" + second)}};
  RequireReported(SendConnectVagToCommonMetric(first, second, success),
                  EventLine({"nox_user_operation", "ZELVIEWER", 2}, operation, tick));
}

void ReportTransport(Input& input, std::uint64_t tick) {
  const std::string reason = input.Text();
  const int error = input.Int();
  const int latency = input.Int();
  const Oracle::Object change = {{"transChangeReason", Text(reason)},
                                 {"errorCode", Integer(error)},
                                 {"averageLatancy", Integer(latency)}};
  RequireReported(SendTransChangeToMetrics(reason, error, latency),
                  EventLine({"VEVENT_MSG_TRANS_CHANGE", "", 3}, change, tick));
}

void ReportDriver(Input& input, std::uint64_t tick) {
  const std::string service = input.Text();
  RequireReported(VMetrics::SendUsbDriverErrorMetrics(service),
                  service.empty()
                      ? ""
                      : Oracle::EventLine("VMETRICS_USB_DRIVER_ERROR", service, 0,
                                          "Init drivers error.", tick, PreparedMetrics()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  FakePlatform::Reset();
  PreparedMetrics();  // Into the catalogue, before anything is rendered.
  const std::uint8_t how = input.Byte();
  const std::uint64_t tick = input.Number(8);
  FakePlatform::ScriptTicks({tick});
  switch (how % 4) {
    case 0:
      ReportConnection(input, tick);
      break;
    case 1:
      ReportOperation(input, tick);
      break;
    case 2:
      ReportTransport(input, tick);
      break;
    default:
      ReportDriver(input, tick);
  }
  return 0;
}
