// Records with an event ID, and their submission.

#include <cstddef>
#include <cstdint>
#include <string>

#include "ExactBytes.h"
#include "FakePlatform.h"
#include "Input.h"
#include "PreparedMetrics.h"
#include "RecordModel.h"
#include "Records.h"
#include "VMetrics.h"
#include "Verdict.h"

namespace {

/// The entry refuses what has no value, and says so; the renderer does not.
void Render(const std::string& record, std::size_t offset, std::uint32_t length,
            std::uint64_t tick) {
  const auto expected = Oracle::StringRecord(record.data(), tick, PreparedMetrics());
  ExactBytes exact(record, offset);
  const auto* packed = exact.As<VMetricsDataString>();
  RequireRecord(VMetrics::GetStringBaseMetricsString(packed), expected, kStringKeys);
  Require(FakePlatform::LogLines().empty(), "nothing logged");
  const bool refused = length == 0;
  RequireRecord(VMetrics::StringFmtMetricsMsgToString(packed), refused ? std::nullopt : expected,
                kStringKeys);
  const bool logged = refused || length > 65536;
  Require(FakePlatform::LogLines().size() == (logged ? 1 : 0), "one line logged, if any");
  if (logged) {
    RequireEqual(FakePlatform::LogLines()[0].message,
                 "invalid data length=" + std::to_string(static_cast<std::int32_t>(length)),
                 "what is logged");
  }
}

void Submit(const TextRecord& text, std::uint64_t tick) {
  const std::string line = Oracle::EventLine(text.eventId, text.serviceName, text.type, text.value,
                                             tick, PreparedMetrics());
  const int status = SendStringDataToMetric(text.eventId, text.serviceName, text.value.data(),
                                            static_cast<int>(text.value.size()),
                                            static_cast<VMetricsHeaderIndexType>(text.type));
  Require(status == (line.empty() ? -10000 : 0), "the status");
  Require(FakePlatform::MetricsLines().size() == (line.empty() ? 0 : 1), "the number of lines");
  if (!line.empty()) {
    RequireEqual(FakePlatform::MetricsLines()[0].text, line, "the event's line");
    RequireEqual(FakePlatform::MetricsLines()[0].format, "%s", "the format");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  FakePlatform::Reset();
  PreparedMetrics();  // Into the catalogue, before anything is rendered.
  const std::uint8_t how = input.Byte();
  TextRecord text;
  text.terminalId = input.Word();
  text.type = input.Word();
  const std::uint64_t tick = input.Number(8);
  FakePlatform::ScriptTicks({tick});
  text.eventId = ChosenEvent(input);
  text.userName = input.Text();
  text.transactionId = input.Text();
  text.businessType = input.Text();
  text.serviceName = input.Text();
  const bool tooLong = how % 16 == 15;
  const std::uint32_t excess = tooLong ? input.Word() : 0;
  text.value = how % 16 == 14 ? input.Text() : input.Rest();
  if (excess > 65535) {
    text.value.clear();
    text.dataLength = excess;
  }
  Render(text.Bytes(), how / 16 % 8,
         text.dataLength.value_or(static_cast<std::uint32_t>(text.value.size())), tick);
  if (how >= 128) {
    Submit(text, tick);
  }
  return 0;
}
