#include "KilledWriter.h"

#include <unistd.h>

#include "NumberedLines.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr char kHead[] = R"({"eventId":"kills","text":")";
constexpr char kTail[] = R"("})";

/// Of every eight lines one is long enough for a kill to hit its write again and again.
int LineLength(int number) {
  constexpr int kLengths[] = {200, 4'096, 9'000};
  return number % 8 == 0 ? 60'000 : kLengths[number % 4];
}

void WriteLine(int writer, int number) {
  VLogger::GetInstance().Metrics("%s", KilledWriter::Line(writer, number).c_str());
}

void TraceStep(int writer, int number) {
  const std::string step = KilledWriter::StepName(writer, number);
  for (const int status : {0, 1}) {
    if (VMetrics::InsertRecord(status, "kills", "step", step.c_str(), "ParentSpanId", 0) !=
        VMETRICS_OK) {
      _exit(3);
    }
  }
}

}  // namespace

bool KilledWriter::IsStep(int number) { return number % 4 == 3; }

std::string KilledWriter::StepName(int writer, int number) {
  return std::to_string(writer) + " " + std::to_string(number);
}

std::string KilledWriter::Line(int writer, int number) {
  constexpr int kAround = sizeof kHead + sizeof kTail - 2;
  return kHead + NumberedLine(writer, number, LineLength(number) - kAround) + kTail;
}

void KilledWriter::Run(const std::string& directory, int writer, std::atomic<int>& acknowledged) {
  if (!VPlatformConfig::SetMetricsFile(directory + "/metrics") ||
      !VPlatformConfig::SetDiagnosticsFile(directory + "/diagnostics") ||
      !VPlatformConfig::SetLockFileDirectory(directory)) {
    _exit(2);
  }
  for (int number = 0;; ++number) {
    IsStep(number) ? TraceStep(writer, number) : WriteLine(writer, number);
    acknowledged = number + 1;
  }
}
