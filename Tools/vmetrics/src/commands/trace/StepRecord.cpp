#include "trace/StepRecord.h"

#include <optional>

#include "StepResult.h"

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
  const Member* written = entry.Find("timestamp");
  record.written = written != nullptr ? written->Integer().value_or(kNoTick) : kNoTick;
  const StepResult result = StepResultOf(entry);
  record.errorCode = result.errorCode.value_or(0);
  record.hasErrorCode = result.errorCode.has_value();
  record.isFailed = result.isFailed;
  return record;
}

}  // namespace vmetrics
