// Makes the logs of docs/read-a-customers-log.md by the library, all but their identifiers the same
// each time: two weeks of a customer, whose sessions became slow with the second, and hung in one.
// usage: customer_logs DIRECTORY

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "Records.h"
#include "VDateTime.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

unsigned long now = 0;

constexpr unsigned long kFirstWeek = 1794672000'000;   // 2026-11-14 16:00 UTC.
constexpr unsigned long kSecondWeek = 1795276800'000;  // A week later.
constexpr unsigned long kBetweenSessions = 7 * 60'000;
constexpr int kSessions = 12;
constexpr int kHungSession = 9;
constexpr std::uint32_t kFramesPerSecond = 302645249;
constexpr std::uint32_t kEncoderQueue = 302645266;  // The product's own.
constexpr std::uint32_t kUsbList = 671809536;

/// The file of each process, one of which writes at a time.
struct Week {
  std::string viewer;
  std::string agent;
  unsigned long start;
  unsigned long encoderTakes;
};

void WriteTo(const std::string& file) {
  if (!VPlatformConfig::SetMetricsFile(file)) {
    std::perror(file.c_str());
    std::exit(1);
  }
}

/// A step of the session, which lasts at least `takes` milliseconds and what `inside` takes.
void Trace(
    const std::string& session, const char* step, unsigned long takes, int error,
    const std::function<void()>& inside = [] {}) {
  VMetrics::InsertRecord(0, session.c_str(), "CONNECT", step, "ParentSpanId", 0);
  inside();
  now += takes;
  VMetrics::InsertRecord(1, session.c_str(), "CONNECT", step, "ParentSpanId", error);
}

void WriteRecord(std::uint32_t id, const std::string& value) {
  const std::string record = NumericRecord(7, id, value);
  VLogger::GetInstance().Metrics(
      "%s",
      VMetrics::GetBaseMetricsString(reinterpret_cast<const VMetricsData*>(record.data())).c_str());
}

/// A viewer that was killed in the middle of a line.
void LeaveFragment(const std::string& file) {
  std::ofstream(file, std::ios::app) << R"({"eventId":"302645249","timestamp":17952)";
}

/// The first gateway does not answer by UDP: ten seconds go by before the second is tried.
void HangAtGateway(const std::string& session) {
  const unsigned long start = now;
  Trace(session, "Connect", 10'000, -104);
  SendConnectVagToMetric(start, 0);
  SendTransChangeToMetrics("udp lost, tcp taken", -104, 38);
  now += 2'060;
}

void Connect(const Week& week, int number) {
  const std::string session = "session-" + std::to_string(number);
  const auto spread = [number](unsigned long most) {
    return static_cast<unsigned long>(number) * 37 % most;
  };
  const bool isSecondWeek = week.start == kSecondWeek;
  const bool hangs = isSecondWeek && number == kHungSession;
  now = week.start + static_cast<unsigned long>(number) * kBetweenSessions;

  WriteTo(week.viewer);
  Trace(session, "authenticate", 210 + spread(80), 0);
  if (hangs) {
    HangAtGateway(session);
  }
  const unsigned long start = now;
  Trace(session, "Connect", 840 + spread(200), 0);
  SendConnectVagToMetric(start, 1);

  WriteTo(week.agent);
  Trace(session, "create rds", 60, 0, [&] {
    now += 50;
    Trace(session, "start encoder", week.encoderTakes + spread(60), hangs ? -5 : 0);
  });
  WriteRecord(kEncoderQueue, ValueBytes<std::int32_t>(number % 4));

  WriteTo(week.viewer);
  Trace(session, "first frame", 190 + spread(50), 0);
  WriteRecord(kFramesPerSecond, ValueBytes<std::int32_t>(hangs ? 11 : 60 - number % 3));
  if (number == 2) {
    WriteRecord(kUsbList, "Passport scanner of J. Doe");
  } else if (isSecondWeek && number == 4) {
    LeaveFragment(week.viewer);
  }
}

void Register(std::string definition) { VMetrics::RegisterMetricsDataType(definition.data()); }

}  // namespace

/// The library asks this one for the time.
unsigned long VDateTime::GetCurrentTick() { return now; }

int main(int argc, char** argv) {
  if (argc != 2 || !VPlatformConfig::SetLockFileDirectory(argv[1])) {
    std::fputs("usage: customer_logs DIRECTORY\n", stderr);
    return 2;
  }
  const std::string directory = std::string(argv[1]) + '/';
  Register("302645266;int;displayEncoderQueue;0");
  const std::string before = directory + "last-release.log";
  for (const Week& week :
       {Week{before, before, kFirstWeek, 230},
        Week{directory + "viewer.log", directory + "agent.log", kSecondWeek, 1'900}}) {
    for (int number = 0; number < kSessions; ++number) {
      Connect(week, number);
    }
  }
  return 0;
}
