// Span identifiers, and whole steps.

#include <benchmark/benchmark.h>
#include <sys/file.h>

#include <cstdio>
#include <random>

#include "LineFiles.h"
#include "Records.h"
#include "ScratchFiles.h"
#include "Steps.h"

namespace {

constexpr char kHandSpan[] = "hand-spanId";

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

/// One session with the span file: open, lock, `use(descriptor)`, close. False when one failed.
template <typename Use>
bool Session(Use use) {
  static const std::string path = ScratchFiles::Get().Path(kHandSpan);
  const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  const bool used = flock(descriptor, LOCK_EX) == 0 && use(descriptor);
  return close(descriptor) == 0 && used;
}

bool StepByHand() {
  const unsigned long start = VDateTime::GetCurrentTick();
  const unsigned long end = VDateTime::GetCurrentTick();
  const std::string spanId = IdentifierByHand();
  std::string parent(128, '\0');
  const bool read = Session([&](int file) {
    const ssize_t size = pread(file, parent.data(), parent.size(), 0);
    parent.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return size >= 0;
  });
  const bool published = Session([&](int file) {
    return pwrite(file, spanId.data(), spanId.size(), 0) == static_cast<ssize_t>(spanId.size());
  });
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
  return WriteByHand(line) && read && published;
}

void IdentifierOurs() { benchmark::DoNotOptimize(VMetrics::GenerateUuid()); }
void IdentifierFloor() { benchmark::DoNotOptimize(IdentifierByHand()); }

template <void (*Make)()>
void Run(benchmark::State& state) {
  for (auto iteration : state) {
    Make();
  }
}

template <bool (*Step)(), const char* kLines>
void RunSteps(benchmark::State& state) {
  if (!PrepareSteps()) {
    state.SkipWithError("no files");
    return;
  }
  MeasureLines<Step, StepOurs>(state, kLines);
}

BENCHMARK(Run<IdentifierOurs>)->Name("identifier/ours");
BENCHMARK(Run<IdentifierFloor>)->Name("identifier/hand-written");
BENCHMARK(RunSteps<StepOurs, kOurLines>)->Name("step/ours");
BENCHMARK(RunSteps<StepByHand, kHandLines>)->Name("step/hand-written");

}  // namespace
