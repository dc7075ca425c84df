// IPC messages: the record in one, and the report of a module that was slow with one.

#include <cstddef>
#include <cstdint>
#include <string>

#include "ExactBytes.h"
#include "FakePlatform.h"
#include "Input.h"
#include "PreparedMetrics.h"
#include "RecordModel.h"
#include "Records.h"
#include "VIpc.h"
#include "VMetrics.h"
#include "Verdict.h"

namespace {

void Render(const VMessage* message, const std::string& record, std::uint64_t tick) {
  const std::uint32_t length =
      static_cast<std::uint32_t>(Oracle::Number(std::string_view(record).substr(8, 4), 4));
  RequireRecord(VMetrics::FmtMetricsMsgToString(message),
                Oracle::NumericRecord(record.data(), tick, PreparedMetrics()), kNumericKeys);
  Require(FakePlatform::LogLines().size() == (length > 65536 ? 1 : 0), "one line logged, if any");
  if (length > 65536) {
    RequireEqual(FakePlatform::LogLines()[0].message,
                 "invalid data length=" + std::to_string(static_cast<std::int32_t>(length)),
                 "what is logged");
  }
}

struct SlowModule {
  std::string moduleName;
  std::string name;
  std::uint32_t cost;
};

void Report(VMessage* message, const std::string& header, const SlowModule& slow,
            std::uint64_t tick) {
  const auto word = [&](std::size_t offset) {
    const auto bits =
        static_cast<std::uint32_t>(Oracle::Number(std::string_view(header).substr(offset, 4), 4));
    return Oracle::Integer(static_cast<std::int32_t>(bits));
  };
  const std::string payload = Oracle::Line({{"moduleName", Oracle::Text(slow.moduleName)},
                                            {"name", Oracle::Text(slow.name)},
                                            {"msgSrcModuleId", word(4)},
                                            {"msgDstModuleId", word(12)},
                                            {"msgType", word(16)},
                                            {"cost", Oracle::Unsigned(slow.cost)}});
  const std::string line =
      Oracle::EventLine("VEVENT_MSG_PROCESS_SLOW", "", 0, payload, tick, PreparedMetrics());
  const int status = SendModuleProcessTimeoutMetric(slow.moduleName, slow.name, message, slow.cost);
  Require(status == (line.empty() ? -10000 : 0), "the status");
  Require(FakePlatform::MetricsLines().size() == (line.empty() ? 0 : 1), "the number of lines");
  if (!line.empty()) {
    RequireLine(FakePlatform::MetricsLines()[0].text, line, std::string(kStringKeys) + ",args");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  FakePlatform::Reset();
  PreparedMetrics();  // Into the catalogue, before anything is rendered.
  const std::uint8_t how = input.Byte();
  std::string message;
  for (int word = 0; word < 6; ++word) {
    message += Word(input.Word());
  }
  const std::uint64_t tick = input.Number(8);
  FakePlatform::ScriptTicks({tick});
  if (how % 2 == 0) {
    const SlowModule slow{input.Text(), input.Text(), input.Word()};
    ExactBytes exact(message, how / 16 % 8);
    Report(exact.As<VMessage>(), message, slow, tick);
    return 0;
  }
  const std::uint32_t id = ChosenId(input);
  const std::uint32_t terminal = input.Word();
  const std::uint32_t excess = how % 16 == 15 ? input.Word() : 0;
  const std::string record = excess > 65535 ? NumericRecord(terminal, id, excess, "")
                                            : NumericRecord(terminal, id, input.Rest());
  ExactBytes exact(message + record, how / 16 % 8);
  Render(exact.As<VMessage>(), record, tick);
  return 0;
}
