// The client of the demo: it reports how it connects, starts the agent, renders the records that
// the agent sends, and reports what the framework between the two would.
//
// usage, by bin/demo: demo_client SPAN-DIRECTORY AGENT

#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "VDateTime.h"
#include "VIpc.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"
#include "demo_shared.h"

namespace {

constexpr char kService[] = "zelviewer";
/// The event has a reporter but no built-in entry: unless registered, its lines have no "args".
constexpr char kOperationDefinition[] = "nox_user_operation;json;userOperation;0";

constexpr unsigned long kConnectTimeout = 3000;  // Milliseconds, as ticks are.
constexpr int kTimedOut = 0;
constexpr int kConnected = 1;
constexpr unsigned int kSlowCost = 850;
constexpr int kTransportLost = -104;
constexpr int kAverageLatency = 38;
constexpr int kUsbDriverMissing = -5;
constexpr timeval kAgentPatience = {5, 0};  // For each message, either way.

void RegisterMetrics() {
  demo::ExpectOk(demo::Register(VMetrics::RegisterMetricsDataType, demo::kEncoderQueueDefinition),
                 "registering the agent's metric");
  demo::ExpectOk(demo::Register(VMetrics::RegisterMetricsStringDataType, kOperationDefinition),
                 "registering the client's operations");
}

/// Two attempts: the first gateway does not answer, the second does.
int Connect() {
  const unsigned long now = VDateTime::GetCurrentTick();
  // The demo does not wait: it pretends to have begun so long ago.
  demo::ExpectOk(SendConnectVagToMetric(now - kConnectTimeout, kTimedOut), "reporting the timeout");
  demo::ExpectOk(SendConnectVagToCommonMetric("gateway-1", "timeout", false),
                 "reporting the failed operation");
  demo::ExpectOk(SendConnectVagToMetric(now, kConnected), "reporting the connection");
  demo::ExpectOk(SendConnectVagToCommonMetric("gateway-2", "connected", true),
                 "reporting the operation");
  demo::ExpectOk(SendBizboxInsToMetric(), "reporting the box");
  return 0;
}

/// The agent as a process of its own, and our end of the connection to it.
struct Agent {
  pid_t process = -1;
  int connection = -1;
};

bool MakeConnection(int (&ends)[2]) {
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
    return false;
  }
  // A stopped process must not hang the other one.
  setsockopt(ends[0], SOL_SOCKET, SO_RCVTIMEO, &kAgentPatience, sizeof kAgentPatience);
  setsockopt(ends[1], SOL_SOCKET, SO_SNDTIMEO, &kAgentPatience, sizeof kAgentPatience);
  return true;
}

pid_t Spawn(char* program, char* spanDirectory, int connection) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, connection, demo::kConnection);
  char* arguments[] = {program, spanDirectory, nullptr};
  pid_t process = -1;
  errno = posix_spawn(&process, program, &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  return errno == 0 ? process : -1;
}

Agent StartAgent(char* program, char* spanDirectory) {
  int ends[2];
  if (!MakeConnection(ends)) {
    return {};
  }
  const pid_t process = Spawn(program, spanDirectory, ends[1]);
  close(ends[1]);  // The agent alone holds it now, so its end is the connection's.
  if (process < 0) {
    close(ends[0]);
    return {};
  }
  return {process, ends[0]};
}

/// Whether the `length` bytes that came are a message with all of its record. The renderer believes
/// the length that a record announces, so what comes from another process is checked first, by
/// whoever knows how much came.
bool CarriesWholeRecord(const std::vector<char>& message, std::size_t length) {
  constexpr std::size_t kHeaders = sizeof(VMessage) + sizeof(VMetricsData);
  if (length < kHeaders || length > message.size()) {
    return false;
  }
  VMetricsData record;
  std::memcpy(&record, message.data() + sizeof(VMessage), sizeof record);
  return record.dataLength <= length - kHeaders;
}

void Render(const VMessage* message) {
  const std::string line = VMetrics::FmtMetricsMsgToString(message);
  demo::Expect(!line.empty(), "rendering a record");
  // The text is the argument, never the format: a value may hold a "%".
  VLogger::GetInstance().Metrics("%s", line.c_str());
}

/// Renders and counts what the agent sends until it ends. False when it sends something else, or
/// nothing for too long.
bool RenderRecords(int connection, int& records) {
  std::vector<char> message(demo::kLongestMessage);
  while (true) {
    // With MSG_TRUNC the result is the real length, also of a message that is too long.
    const ssize_t length = recv(connection, message.data(), message.size(), MSG_TRUNC);
    if (length <= 0) {
      return length == 0;
    }
    if (!CarriesWholeRecord(message, static_cast<std::size_t>(length))) {
      return false;
    }
    Render(reinterpret_cast<const VMessage*>(message.data()));
    ++records;
  }
}

/// Starts the agent and sees it through; returns how many records came.
int RunAgent(char* program, char* spanDirectory) {
  const Agent agent = StartAgent(program, spanDirectory);
  if (agent.process < 0) {
    demo::Expect(false, "starting the agent");
    return 0;
  }
  int records = 0;
  const bool heardOut = RenderRecords(agent.connection, records);
  demo::Expect(heardOut, "hearing the agent out");
  close(agent.connection);
  if (!heardOut) {
    kill(agent.process, SIGKILL);  // It may hang; waiting for it would then be for ever.
  }
  int status = -1;
  waitpid(agent.process, &status, 0);
  demo::Expect(WIFEXITED(status) && WEXITSTATUS(status) == 0, "the agent's work");
  return records;
}

/// A module took too long for a message, and the transport changed under it.
int ShowFirstFrame() {
  VMessage message = {};
  message.srcModuleId = demo::kAgentModule;
  message.dstModuleId = demo::kClientModule;
  message.msgType = demo::kMetricsMessage;
  demo::ExpectOk(SendModuleProcessTimeoutMetric("display", "FrameMessage", &message, kSlowCost),
                 "reporting the slow module");
  demo::ExpectOk(SendTransChangeToMetrics("udp lost, tcp taken", kTransportLost, kAverageLatency),
                 "reporting the change of transport");
  return 0;
}

/// A step that fails: its error code ends up in its record.
int RedirectUsb() {
  demo::ExpectOk(VMetrics::SendUsbDriverErrorMetrics(kService), "reporting the USB failure");
  return kUsbDriverMissing;
}

void TellWhatHappened(int records) {
  std::fprintf(
      stderr,
      "demo: %d records of the agent were rendered. The steps of both processes were traced,\n"
      "demo: each the child of the one before; the last is span %s.\n"
      "demo: Every line of standard output is one JSON text; try bin/demo | jq .args\n"
      "demo: What they mean: docs/metrics-lines.md. How parents are found: "
      "docs/span-file.md. The code: examples/.\n",
      records, VMetrics::GetCurrentParentSpanId().c_str());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 || !VPlatformConfig::SetLockFileDirectory(argv[1])) {
    std::fputs("usage: demo_client SPAN-DIRECTORY AGENT\n", stderr);
    return 2;
  }
  RegisterMetrics();
  demo::Trace("Connect", Connect);
  const int records = RunAgent(argv[2], argv[1]);
  demo::Trace("first frame", ShowFirstFrame);
  demo::Trace("redirect USB", RedirectUsb);
  TellWhatHappened(records);
  return demo::allWell ? 0 : 1;
}
