#include "EncodeArguments.h"

#include <fmt/format.h>

#include <optional>

#include "Command.h"
#include "HexReader.h"
#include "MetricId.h"
#include "RecordFault.h"
#include "ValueType.h"

namespace vmetrics {

std::uint32_t WordOf(std::string_view name, const std::string& text) {
  const std::optional<int> number = ParseMetricId(text);  // All are 32 bits, written alike.
  if (!number) {
    throw UsageError(fmt::format(
        "{}: \"{}\" is no whole number from -2147483648 to 4294967295 or 0xFFFFFFFF", name, text));
  }
  return static_cast<std::uint32_t>(*number);
}

std::string BytesOf(const std::string& digits) {
  HexReader reader;
  std::string bytes;
  if (!reader.Add(digits, bytes) || !reader.Finish()) {
    throw UsageError(fmt::format("--raw:{}", reader.Fault()));
  }
  return bytes;
}

std::string ValueOf(const std::string& id, const MetricEntry& metric, const std::string& text) {
  const ValueType* type = FindValueType(metric[0]);
  if (type == nullptr) {
    throw UsageError(fmt::format(
        "{} is of type \"{}\", which has no values; --raw gives bytes instead", id, metric[0]));
  }
  if (const std::optional<std::string> value = type->pack(text)) {
    return *value;
  }
  const std::string why = type->name == "json" ? JsonFaultOf(text) : std::string(type->form);
  throw UsageError(
      fmt::format("{} is no {}, as {} needs it: {}", ShowText(text), type->name, id, why));
}

}  // namespace vmetrics
