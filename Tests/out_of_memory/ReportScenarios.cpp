#include <string>

#include "Host.h"
#include "Records.h"
#include "Scenario.h"
#include "VIpc.h"

namespace {

// As the list of exported functions spells a text.
const std::string kString =
    "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >";
const std::string kSubmit = "SendStringDataToMetric(" + kString + ", " + kString +
                            ", char const*, int, VMetricsHeaderIndexType)";
const std::string kOperation =
    "SendConnectVagToCommonMetric(" + kString + " const&, " + kString + " const&, bool)";
const std::string kSlowModule =
    "SendModuleProcessTimeoutMetric(" + kString + ", " + kString + ", VMessage*, unsigned int)";
const std::string kTransport = "SendTransChangeToMetrics(" + kString + ", int, int)";
const std::string kUsb = "VMetrics::SendUsbDriverErrorMetrics(" + kString + " const&)";
constexpr char kConnect[] = "SendConnectVagToMetric(unsigned long, int)";
constexpr char kBizbox[] = "SendBizboxInsToMetric()";

constexpr char kService[] = "a service too long for it";
const std::string kLongName(2000, 'n');
const std::string kNameTooLongToReport(70'000, 'n');
const std::string kPayload = R"({ "a" : ")" + kLongName + R"(" })";
std::string messageBytes = Message(1, 2, 3);

VMessage* TheMessage() { return reinterpret_cast<VMessage*>(messageBytes.data()); }

std::string Submit(const char* eventId, const char* service, const std::string& data) {
  return std::to_string(SendStringDataToMetric(eventId, service, data.data(),
                                               static_cast<int>(data.size()),
                                               VMETRICS_HEADER_INDEX_CONNECTION));
}

std::string SubmitNegativeLength() {
  return std::to_string(SendStringDataToMetric("e", "s", "", -1, VMETRICS_HEADER_INDEX_CONNECTION));
}

std::string ReportSlow(const std::string& name, VMessage* message) {
  return std::to_string(SendModuleProcessTimeoutMetric(name, name, message, 4294967295));
}

Scenario Report(const char* name, const std::string& function, std::string (*call)(),
                const std::vector<std::string>& outcomes) {
  return {name, function, call, Nothing, NothingToAsk, outcomes};
}

/// All or nothing: the line is the last thing that a report makes.
std::vector<std::string> Line() { return NothingOr("0; line"); }

std::string Failure(const std::string& cause) {
  return "-10000" + cause + "; says SendStringDataToMetric failed";
}

}  // namespace

std::vector<Scenario> ReportScenarios() {
  const std::string tooLong = "; says invalid data length=";
  const auto saidThenFailed = [](const std::string& cause) {
    return std::vector<std::string>{"bad_alloc", Failure(cause)};
  };
  return {
      Report(
          "SubmitJson", kSubmit, [] { return Submit(kJsonEvent, kService, kPayload); }, Line()),
      Report(
          "SubmitText", kSubmit, [] { return Submit(kTextEvent, "", kLongName); }, Line()),
      Report(
          "SubmitUnknownEvent", kSubmit, [] { return Submit("e", "s", "{}"); }, Line()),
      Report(
          "SubmitForTooLongService", kSubmit, [] { return Submit(kJsonEvent, kName, "{}"); },
          saidThenFailed("")),
      Report(
          "SubmitTooMuch", kSubmit,
          [] { return Submit(kTextEvent, kService, kNameTooLongToReport); },
          saidThenFailed(tooLong + "70000")),
      Report(
          "SubmitNothing", kSubmit, [] { return Submit(kTextEvent, kService, ""); },
          saidThenFailed(tooLong + "0")),
      Report("SubmitNegativeLength", kSubmit, SubmitNegativeLength, {Failure("")}),

      Report(
          "Bizbox", kBizbox, [] { return std::to_string(SendBizboxInsToMetric()); }, Line()),
      Report(
          "FirstPack", kConnect, [] { return std::to_string(SendConnectVagToMetric(1, 1)); },
          Line()),
      Report(
          "FirstPackTooLate", kConnect, [] { return std::to_string(SendConnectVagToMetric(1, 0)); },
          Line()),
      Report(
          "Operation", kOperation,
          [] { return std::to_string(SendConnectVagToCommonMetric(kLongName, kLongName, true)); },
          Line()),
      Report(
          "OperationTooLong", kOperation,
          [] {
            return std::to_string(
                SendConnectVagToCommonMetric(kNameTooLongToReport, kLongName, false));
          },
          saidThenFailed(tooLong + "72112")),
      Report(
          "SlowModule", kSlowModule, [] { return ReportSlow(kLongName, TheMessage()); }, Line()),
      Report(
          "SlowModuleOfShortName", kSlowModule, [] { return ReportSlow("n", TheMessage()); },
          Line()),
      Report("SlowModuleWithoutMessage", kSlowModule, [] { return ReportSlow("n", nullptr); },
             {"-10000; says Message NULL"}),
      Report(
          "TransportChange", kTransport,
          [] { return std::to_string(SendTransChangeToMetrics(kLongName, 1, 2)); }, Line()),
      Report(
          "TransportChangeForNoReason", kTransport,
          [] { return std::to_string(SendTransChangeToMetrics("", 1, 2)); }, Line()),

      Report(
          "UsbError", kUsb,
          [] { return std::to_string(VMetrics::SendUsbDriverErrorMetrics(kService)); }, Line()),
      Report(
          "UsbErrorOfTooLongService", kUsb,
          [] { return std::to_string(VMetrics::SendUsbDriverErrorMetrics(kName)); },
          saidThenFailed("")),
      Report("UsbErrorOfNobody", kUsb,
             [] { return std::to_string(VMetrics::SendUsbDriverErrorMetrics("")); }, {Failure("")}),
  };
}
