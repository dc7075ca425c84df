// The agent of the demo: what runs inside the remote desktop. It makes its own metric known, traces
// its two steps and sends the client packed records; the client renders them.
//
// usage, by demo_client: demo_agent SPAN-DIRECTORY, with the connection at descriptor 3

#include <sys/socket.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include "BoundsChecked.h"
#include "VIpc.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"
#include "demo_shared.h"

namespace {

constexpr std::uint32_t kTerminal = 7;

// Metrics of the agent's side that are built in; docs/catalogue.md lists all.
constexpr std::uint32_t kDisplayFps = 0x120A0001;
constexpr std::uint32_t kDisplayResolution = 0x120A0005;
constexpr std::uint32_t kDisplayEncoderType = 0x120A0008;
constexpr std::uint32_t kDisplayBitRate = 0x120A0009;
constexpr std::uint32_t kFirstFrame = 0x200A0003;
constexpr std::uint32_t kSharedFileSize = 0x270A0002;
constexpr std::uint32_t kMemoryUsage = 0x2F0A0003;

/// Its ID is displayFPS's, so it is refused: an entry of the catalogue is never replaced.
constexpr char kRefusedDefinition[] = "302645249;string;displayFrames;0";

/// During start-up, before anything is rendered: the catalogue has no lock.
void RegisterMetrics() {
  demo::ExpectOk(demo::Register(VMetrics::RegisterMetricsDataType, demo::kEncoderQueueDefinition),
                 "registering the agent's metric");
  std::fprintf(stderr, "demo: the agent registers \"%s\"; \"%s\" is refused, as its ID is taken:\n",
               demo::kEncoderQueueDefinition, kRefusedDefinition);
  demo::Expect(
      demo::Register(VMetrics::RegisterMetricsDataType, kRefusedDefinition) == VMETRICS_INVALID,
      "having an ID refused that is taken");
}

/// A message that carries one record: header, record header, value.
std::vector<char> Pack(std::uint32_t metric, const void* value, std::uint32_t length) {
  std::vector<char> bytes(sizeof(VMessage) + sizeof(VMetricsData) + length);
  auto* const message = reinterpret_cast<VMessage*>(bytes.data());
  message->srcModuleId = demo::kAgentModule;
  message->dstModuleId = demo::kClientModule;
  message->msgType = demo::kMetricsMessage;
  auto* const record = reinterpret_cast<VMetricsData*>(message->body);
  record->terminalId = kTerminal;
  record->eventId = metric;
  record->dataLength = length;
  demo::Expect(memcpy_s(record->data, length, value, length) == 0, "packing a value");
  return bytes;
}

void Send(const std::vector<char>& message) {
  // If the client is gone this fails, and no signal ends the agent.
  const ssize_t sent = send(demo::kConnection, message.data(), message.size(), MSG_NOSIGNAL);
  demo::Expect(sent == static_cast<ssize_t>(message.size()), "sending a record");
}

/// The value has to be exactly as wide as the metric's type: 4 bytes for "int" and "enum", 8 for
/// "uint64_t" and "double", 1 for "bool".
template <typename Number>
void SendNumber(std::uint32_t metric, Number value) {
  Send(Pack(metric, &value, sizeof value));
}

/// For "string" and "json". The terminator may stay behind: the renderer adds its own.
void SendText(std::uint32_t metric, const char* text) {
  Send(Pack(metric, text, static_cast<std::uint32_t>(std::strlen(text))));
}

void SendRecords() {
  SendNumber<std::int32_t>(kDisplayFps, 60);
  SendText(kDisplayResolution, "1920x1080");
  SendNumber<double>(kMemoryUsage, 41.5);
  SendNumber<std::int32_t>(kDisplayEncoderType, 3);
  SendNumber<bool>(kFirstFrame, true);
  SendNumber<std::uint64_t>(kSharedFileSize, 5368709120);
  SendText(kDisplayBitRate, R"({"average": 8200, "peak": 12400})");
  SendNumber<std::int32_t>(demo::kEncoderQueue, 2);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 || !VPlatformConfig::SetLockFileDirectory(argv[1])) {
    std::fputs("usage: demo_agent SPAN-DIRECTORY\n", stderr);
    return 2;
  }
  RegisterMetrics();
  // Steps end before the first record goes out: from then on the client writes at the same time.
  demo::Trace("create rds", [] { return 0; });
  demo::Trace("start encoder", [] { return 0; });
  SendRecords();
  return demo::allWell ? 0 : 1;  // Leaving closes the connection, which tells the client the end.
}
