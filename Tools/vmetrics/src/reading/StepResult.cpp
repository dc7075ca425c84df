#include "StepResult.h"

#include <limits>

namespace vmetrics {

namespace {

std::optional<std::int32_t> IntegerInArgs(const LogEntry& entry, std::string_view key) {
  using Limits = std::numeric_limits<std::int32_t>;
  const Member* member = entry.FindInArgs(key);
  const std::optional<std::int64_t> number = member != nullptr ? member->Integer() : std::nullopt;
  const bool fits = number && *number >= Limits::min() && *number <= Limits::max();
  return fits ? std::optional(static_cast<std::int32_t>(*number)) : std::nullopt;
}

}  // namespace

StepResult StepResultOf(const LogEntry& entry) {
  const std::optional<std::int32_t> errorCode = IntegerInArgs(entry, "errorCode");
  const bool isFailed = errorCode.value_or(0) != 0 || IntegerInArgs(entry, "isSuccess") == 0;
  return {errorCode, isFailed};
}

}  // namespace vmetrics
