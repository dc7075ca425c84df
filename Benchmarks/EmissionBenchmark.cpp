// One line to a file: a ready text, and an event that is built first.

#include <benchmark/benchmark.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include "Records.h"
#include "ScratchFiles.h"
#include "VLogger.h"
#include "VPlatformConfig.h"

namespace {

constexpr char kOurFile[] = "ours.log";
constexpr char kHandFile[] = "hand.log";
constexpr char kSpdlogFile[] = "spdlog.log";

const std::string& ReadyText() {
  static const std::string text = VMetrics::GetBaseMetricsString(NumericRecord());
  return text;
}

int HandDescriptor() {
  static const int descriptor = ScratchFiles::Get().OpenForAppending(kHandFile);
  return descriptor;
}

spdlog::logger& SpdlogLogger() {
  static const std::shared_ptr<spdlog::logger> logger = [] {
    auto made = spdlog::basic_logger_mt("metrics", ScratchFiles::Get().Path(kSpdlogFile));
    made->set_pattern("%v");
    made->flush_on(spdlog::level::info);
    return made;
  }();
  return *logger;
}

void Write(const std::string& line) {
  benchmark::DoNotOptimize(write(HandDescriptor(), line.data(), line.size()));
}

void ReadyOurs() { VLogger::GetInstance().Metrics("%s", ReadyText().c_str()); }

void ReadyWrite() {
  static const std::string line = ReadyText() + "\n";
  Write(line);
}

void ReadySpdlog() { SpdlogLogger().info(ReadyText()); }

void EventOurs() { SendTransChangeToMetrics("bandwidth", 7, 35); }

void EventHandWritten() {
  const std::string reason = "bandwidth";
  std::string line;
  line.reserve(320);
  line.append("{\"eventId\":\"VEVENT_MSG_TRANS_CHANGE\",\"timestamp\":");
  AppendNumber(line, VDateTime::GetCurrentTick());
  line.append(
      ",\"terminalId\":\"0\",\"type\":\"3\",\"transactionId\":\"\",\"businessType\":\"\","
      "\"serviceName\":\"\",\"userName\":\"\",\"args\":{\"transChangeReason\":");
  AppendString(line, reason);
  line.append(",\"errorCode\":");
  AppendNumber(line, 7);
  line.append(",\"averageLatancy\":");
  AppendNumber(line, 35);
  line.append("}}\n");
  Write(line);
}

/// Runs `Emit` on files that are there and empty.
template <void (*Emit)()>
void Run(benchmark::State& state) {
  static const bool set = VPlatformConfig::SetMetricsFile(ScratchFiles::Get().Path(kOurFile));
  if (!set) {
    state.SkipWithError("no metrics file");
  }
  HandDescriptor();
  SpdlogLogger();
  for (const char* name : {kOurFile, kHandFile, kSpdlogFile}) {
    ScratchFiles::Get().Empty(name);
  }
  for (auto iteration : state) {
    Emit();
  }
}

BENCHMARK(Run<ReadyOurs>)->Name("ready/ours");
BENCHMARK(Run<ReadyWrite>)->Name("ready/write(2)");
BENCHMARK(Run<ReadySpdlog>)->Name("ready/spdlog");
BENCHMARK(Run<EventOurs>)->Name("event/ours");
BENCHMARK(Run<EventHandWritten>)->Name("event/hand-written");

}  // namespace
