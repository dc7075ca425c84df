// Records with a numeric ID, and values alone.

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

/// A value by itself is as wide as its type, or ends with NUL; foreign JSON comes back unchecked.
void RenderValue(std::uint32_t id, std::string bytes) {
  const auto found = PreparedMetrics().numbered.find(static_cast<int>(id));
  if (found == PreparedMetrics().numbered.end()) {
    return;
  }
  bytes.resize(bytes.size() + 8);
  const bool json = found->second.size() > 1 && found->second[0] == "json";
  const auto value = Oracle::Arguments(found->second, bytes);
  ExactBytes exact(bytes, 1);
  const std::string text = VMetrics::ToString(static_cast<int>(id), exact.Data());
  RequireEqual(text,
               json                ? bytes.c_str()
               : value.has_value() ? Oracle::Line(value->members)
                                   : "",
               "the value");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const Oracle::Metrics& metrics = PreparedMetrics();
  FakePlatform::Reset();
  const std::uint8_t how = input.Byte();
  const std::uint32_t id = ChosenId(input);
  const std::uint32_t terminal = input.Word();
  const std::uint64_t tick = input.Number(8);
  FakePlatform::ScriptTicks({tick});
  // A length beyond what is rendered need not be honest: nothing is read then.
  const bool tooLong = how % 16 == 15;
  const std::uint32_t excess = tooLong ? input.Word() : 0;
  const std::string value = how % 16 == 14 ? input.Text() : input.Rest();
  const std::string record = tooLong && excess > 65535 ? NumericRecord(terminal, id, excess, "")
                                                       : NumericRecord(terminal, id, value);
  ExactBytes exact(record, how / 16 % 8);
  RequireRecord(VMetrics::GetBaseMetricsString(exact.As<VMetricsData>()),
                Oracle::NumericRecord(record.data(), tick, metrics), kNumericKeys);
  RenderValue(id, value);
  Require(FakePlatform::LogLines().empty(), "nothing logged");
  return 0;
}
