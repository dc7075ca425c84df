// One line to a file: a ready text, and an event that is built first.

#include <benchmark/benchmark.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include "LineFiles.h"
#include "Records.h"
#include "ScratchFiles.h"
#include "VLogger.h"
#include "VPlatformConfig.h"

namespace {

constexpr char kSpdlogLines[] = "spdlog.log";

const std::string& ReadyText() {
  static const std::string text = VMetrics::GetBaseMetricsString(NumericRecord());
  return text;
}

spdlog::logger& SpdlogLogger() {
  static const std::shared_ptr<spdlog::logger> logger = [] {
    auto made = spdlog::basic_logger_mt("metrics", ScratchFiles::Get().Path(kSpdlogLines));
    made->set_pattern("%v");
    made->flush_on(spdlog::level::info);
    return made;
  }();
  return *logger;
}

bool ReadyOurs() {
  VLogger::GetInstance().Metrics("%s", ReadyText().c_str());
  return true;  // That nothing was lost is seen in the file.
}

bool ReadyWrite() {
  static const std::string line = ReadyText() + "\n";
  return WriteByHand(line);
}

bool ReadySpdlog() {
  SpdlogLogger().info(ReadyText());
  return true;
}

bool EventOurs() { return SendTransChangeToMetrics("bandwidth", 7, 35) == VMETRICS_OK; }

bool EventHandWritten() {
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
  return WriteByHand(line);
}

template <bool (*Emit)(), bool (*Ours)(), const char* kLines>
void Run(benchmark::State& state) {
  static const bool set = VPlatformConfig::SetMetricsFile(ScratchFiles::Get().Path(kOurLines));
  if (!set) {
    state.SkipWithError("no metrics file");
    return;
  }
  MeasureLines<Emit, Ours>(state, kLines);
}

BENCHMARK(Run<ReadyOurs, ReadyOurs, kOurLines>)->Name("ready/ours");
BENCHMARK(Run<ReadyWrite, ReadyOurs, kHandLines>)->Name("ready/write(2)");
BENCHMARK(Run<ReadySpdlog, ReadyOurs, kSpdlogLines>)->Name("ready/spdlog");
BENCHMARK(Run<EventOurs, EventOurs, kOurLines>)->Name("event/ours");
BENCHMARK(Run<EventHandWritten, EventOurs, kHandLines>)->Name("event/hand-written");

}  // namespace
