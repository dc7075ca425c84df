// Span identifiers, and whole steps, from one process and from four at once.

#include <benchmark/benchmark.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <random>

#include "Records.h"
#include "ScratchFiles.h"
#include "VPlatformConfig.h"

namespace {

constexpr char kOurLines[] = "ours.log";
constexpr char kHandLines[] = "hand.log";
constexpr char kHandSpan[] = "hand-spanId";

int HandDescriptor() {
  static const int descriptor = ScratchFiles::Get().OpenForAppending(kHandLines);
  return descriptor;
}

std::string IdentifierByHand() {
  std::random_device device("default");
  std::mt19937 generator(device());
  std::uniform_int_distribution<unsigned int> distribution(0, 0xFFFFFFFF);
  unsigned int draws[5];
  for (unsigned int& draw : draws) {
    draw = distribution(generator);
  }
  char text[37];
  std::snprintf(text, sizeof text, "%08x-%04x-%04x-%04x-%04x%08x", draws[0], draws[1] >> 16,
                draws[2] >> 16, draws[3] >> 16, draws[3] & 0xFFFF, draws[4]);
  return std::string(text, 36);
}

/// One session with the span file: open, lock, `use(descriptor)`, close.
template <typename Use>
void Session(Use use) {
  static const std::string path = ScratchFiles::Get().Path(kHandSpan);
  const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  flock(descriptor, LOCK_EX);
  use(descriptor);
  close(descriptor);
}

void StepByHand() {
  const unsigned long start = VDateTime::GetCurrentTick();
  const unsigned long end = VDateTime::GetCurrentTick();
  const std::string spanId = IdentifierByHand();
  std::string parent(128, '\0');
  Session([&](int file) {
    parent.resize(static_cast<std::size_t>(pread(file, parent.data(), parent.size(), 0)));
  });
  Session(
      [&](int file) { benchmark::DoNotOptimize(pwrite(file, spanId.data(), spanId.size(), 0)); });
  std::string line;
  line.reserve(400);
  line.append("{\"eventId\":\"LOGIN\",\"timestamp\":");
  AppendNumber(line, VDateTime::GetCurrentTick());
  line.append(",\"terminalId\":\"0\",\"type\":\"2\",\"transactionId\":\"order-7\",\"spanId\":\"");
  line.append(spanId).append("\",\"parentSpanId\":\"").append(parent);
  line.append("\",\"args\":{\"stepName\":\"authenticate\",\"errorCode\":0,\"isSuccess\":1,");
  line.append("\"startTime\":");
  AppendNumber(line, start);
  line.append(",\"endTime\":");
  AppendNumber(line, end);
  line.append(",\"usedTime\":");
  AppendNumber(line, end - start);
  line.append("}}\n");
  benchmark::DoNotOptimize(write(HandDescriptor(), line.data(), line.size()));
}

void StepOurs() {
  VMetrics::InsertRecord(0, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
  VMetrics::InsertRecord(1, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
}

void IdentifierOurs() { benchmark::DoNotOptimize(VMetrics::GenerateUuid()); }
void IdentifierFloor() { benchmark::DoNotOptimize(IdentifierByHand()); }

bool SetUp() {
  static const bool done = VPlatformConfig::SetMetricsFile(ScratchFiles::Get().Path(kOurLines)) &&
                           VPlatformConfig::SetLockFileDirectory(ScratchFiles::Get().Path("")) &&
                           HandDescriptor() >= 0;
  ScratchFiles::Get().Empty(kOurLines);
  ScratchFiles::Get().Empty(kHandLines);
  return done;
}

template <void (*Step)()>
void Run(benchmark::State& state) {
  if (!SetUp()) {
    state.SkipWithError("no files");
  }
  for (auto iteration : state) {
    Step();
  }
}

constexpr int kSteps = 4000;

/// `processes` processes that share kSteps steps between them; the time is that of all of them.
void RunProcesses(benchmark::State& state) {
  if (!SetUp()) {
    state.SkipWithError("no files");
  }
  const int processes = static_cast<int>(state.range(0));
  for (auto iteration : state) {
    const auto start = std::chrono::steady_clock::now();
    for (int process = 0; process < processes; ++process) {
      if (fork() == 0) {
        for (int step = 0; step < kSteps / processes; ++step) {
          StepOurs();
        }
        _exit(0);
      }
    }
    while (wait(nullptr) > 0) {
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(time.count());
  }
  if (VMetrics::GetCurrentParentSpanId().size() != 36) {
    state.SkipWithError("a torn identifier");
  }
}

BENCHMARK(Run<IdentifierOurs>)->Name("identifier/ours");
BENCHMARK(Run<IdentifierFloor>)->Name("identifier/hand-written");
BENCHMARK(Run<StepOurs>)->Name("step/ours");
BENCHMARK(Run<StepByHand>)->Name("step/hand-written");
BENCHMARK(RunProcesses)->Name("processes")->Arg(1)->Arg(4)->UseManualTime();

}  // namespace
