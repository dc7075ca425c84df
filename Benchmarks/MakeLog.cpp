// Writes a metrics log as the library makes it: sessions of steps, events and records with a
// numeric ID, with durations, failures and values that vary and are the same in each run. The clock
// is not the system's but a count of what the sessions are said to take; span identifiers alone
// come from the random device.
//
// usage: make_log FILE MEGABYTES [SLOWER-BY-PERCENT]

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "ScratchFiles.h"
#include "VDateTime.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr unsigned long kFirstTick = 1795132800000;  // 2026-11-20 00:00 UTC.

unsigned long tick = kFirstTick;
unsigned long slowerByPercent = 0;
std::mt19937_64 generator;  // The standard says which numbers it yields.

std::uint64_t Below(std::uint64_t limit) { return generator() % limit; }

/// Mostly around `usual`, now and then a multiple of it.
std::uint64_t Around(std::uint64_t usual) {
  std::uint64_t value = usual / 2 + Below(usual + 1);
  while (Below(10) == 0) {
    value += usual + Below(usual + 1);
  }
  return value;
}

struct Step {
  const char* name;
  const char* eventId;
  std::uint64_t milliseconds;
  int failuresInThousand;
};

constexpr Step kSteps[] = {
    {"Connect", "CLIENT_CONNECT", 250, 12},      {"resolve gateway", "CLIENT_CONNECT", 18, 3},
    {"authenticate", "CLIENT_CONNECT", 120, 25}, {"negotiate", "CLIENT_CONNECT", 35, 1},
    {"create rds", "AGENT_SESSION", 900, 6},     {"start encoder", "AGENT_SESSION", 80, 2},
    {"FirstPack", "CLIENT_CONNECT", 400, 9},     {"first frame", "CLIENT_DISPLAY", 60, 1},
    {"redirect USB", "CLIENT_DEVICES", 150, 90}, {"redirect printers", "CLIENT_DEVICES", 700, 30},
    {"open audio", "CLIENT_DEVICES", 45, 4},     {"mount drives", "CLIENT_DEVICES", 220, 15},
};

constexpr int kErrorCodes[] = {-5, -104, -110, -110, -111, 7, 13, 4001};

void TraceStep(const std::string& transaction, const Step& step) {
  VMetrics::InsertRecord(0, transaction.c_str(), step.eventId, step.name, "ParentSpanId", 0);
  tick += Around(step.milliseconds) * (100 + slowerByPercent) / 100;
  const bool hasFailed = Below(1000) < static_cast<unsigned>(step.failuresInThousand);
  const int error = hasFailed ? kErrorCodes[Below(std::size(kErrorCodes))] : 0;
  VMetrics::InsertRecord(1, transaction.c_str(), step.eventId, step.name, "ParentSpanId", error);
}

/// A record of terminal `terminal` whose value has these bytes.
void Render(std::uint32_t terminal, std::uint32_t id, const void* value, std::size_t size) {
  std::vector<char> bytes(sizeof(VMetricsData) + size);
  auto* const record = reinterpret_cast<VMetricsData*>(bytes.data());
  record->terminalId = terminal;
  record->eventId = id;
  record->dataLength = static_cast<std::uint32_t>(size);
  std::memcpy(record->data, value, size);
  const std::string line = VMetrics::GetBaseMetricsString(record);
  VLogger::GetInstance().Metrics("%s", line.c_str());
}

template <typename Number>
void RenderNumber(std::uint32_t terminal, std::uint32_t id, Number value) {
  Render(terminal, id, &value, sizeof value);
}

void RenderText(std::uint32_t terminal, std::uint32_t id, const std::string& value) {
  Render(terminal, id, value.data(), value.size());
}

void RenderRecords(std::uint32_t terminal) {
  RenderNumber(terminal, 0x120B0001, static_cast<int>(Below(61)));   // displayFPS
  RenderNumber(terminal, 0x120A0000, static_cast<int>(Around(12)));  // displayOSRenderingDelay
  RenderNumber(terminal, 0x2F0A0003, static_cast<double>(Below(100000)) / 1000);  // memoryUage
  RenderNumber(terminal, 0x270A0002, Around(50000000));  // fileshareFileSize
  RenderText(terminal, 0x120A0005, Below(3) == 0 ? "2560x1440" : "1920x1080");
  RenderText(terminal, 0x120A0009,
             "{\"average\":" + std::to_string(Around(8000)) +
                 ",\"peak\":" + std::to_string(Around(16000)) + "}");
}

void ReportEvents(unsigned long began) {
  SendConnectVagToMetric(began, Below(50) == 0 ? 0 : 1);
  SendBizboxInsToMetric();
  SendTransChangeToMetrics(Below(2) == 0 ? "udp lost, tcp taken" : "bandwidth", -104,
                           static_cast<int>(Around(40)));
  SendConnectVagToCommonMetric("gateway-" + std::to_string(Below(40)), "connected", true);
}

void RunSession(std::uint64_t number) {
  const std::string transaction = "session-" + std::to_string(number);
  const unsigned long began = tick;
  for (const Step& step : kSteps) {
    TraceStep(transaction, step);
  }
  ReportEvents(began);
  if (number % 2 == 0) {
    RenderRecords(static_cast<std::uint32_t>(Below(500)));
  }
  tick += Below(2000);
}

std::uint64_t NumberIn(const char* text) { return std::strtoull(text, nullptr, 10); }

}  // namespace

/// In the place of the platform's.
unsigned long VDateTime::GetCurrentTick() { return tick; }

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: make_log FILE MEGABYTES [SLOWER-BY-PERCENT]\n", stderr);
    return 2;
  }
  const std::string file = argv[1];
  const std::uint64_t size = NumberIn(argv[2]) * 1000000;
  slowerByPercent = argc > 3 ? NumberIn(argv[3]) : 0;
  std::filesystem::remove(file);
  VPlatformConfig::SetLockFileDirectory(ScratchFiles::Get().Path("."));
  if (!VPlatformConfig::SetMetricsFile(file)) {
    std::perror(argv[1]);
    return 2;
  }
  char definition[] = "nox_user_operation;json;userOperation;0";
  VMetrics::RegisterMetricsStringDataType(definition);
  for (std::uint64_t session = 0; std::filesystem::file_size(file) < size; ++session) {
    RunSession(session);
  }
  return 0;
}
