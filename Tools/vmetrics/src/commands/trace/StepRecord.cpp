#include "trace/StepRecord.h"

#include <optional>

namespace vmetrics {

namespace {

std::string_view TextInArgs(const LogEntry& entry, std::string_view key) {
  const Member* member = entry.FindInArgs(key);
  return member != nullptr && member->kind == JsonKind::kString ? member->text : std::string_view();
}

std::optional<std::int64_t> IntegerInArgs(const LogEntry& entry, std::string_view key) {
  const Member* member = entry.FindInArgs(key);
  return member != nullptr ? member->Integer() : std::nullopt;
}

bool IsErrorCode(std::optional<std::int64_t> number) {
  return number && *number >= std::numeric_limits<std::int32_t>::min() &&
         *number <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace

StepRecord StepRecordOf(const LogEntry& entry) {
  StepRecord record;
  record.transactionId = entry.Text("transactionId");
  record.spanId = entry.Text("spanId");
  record.parentSpanId = entry.Text("parentSpanId");
  record.eventId = entry.Text("eventId");
  record.name = TextInArgs(entry, "stepName");
  record.parentName = TextInArgs(entry, "parentStepName");
  record.start = IntegerInArgs(entry, "startTime").value_or(kNoTick);
  record.end = IntegerInArgs(entry, "endTime").value_or(kNoTick);
  const std::optional<std::int64_t> errorCode = IntegerInArgs(entry, "errorCode");
  record.hasErrorCode = IsErrorCode(errorCode);
  if (record.hasErrorCode) {
    record.errorCode = static_cast<std::int32_t>(*errorCode);
    record.isFailed = record.errorCode != 0;
  } else {
    record.isFailed = IntegerInArgs(entry, "isSuccess") == 0;
  }
  return record;
}

}  // namespace vmetrics
