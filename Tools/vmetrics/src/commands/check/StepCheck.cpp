#include "StepCheck.h"

#include <fmt/format.h>

#include <string_view>

#include "StepTimes.h"

namespace vmetrics {

namespace {

const ObjectRules kStepRecord{"a step record",
                              {{"eventId", Want::kNonEmptyText, false},
                               {"timestamp", Want::kUint64},
                               {"terminalId", Want::kZeroText},
                               {"type", Want::kTwoText},
                               {"transactionId", Want::kNonEmptyText},
                               {"spanId", Want::kNonEmptyText},
                               {"parentSpanId", Want::kNonEmptyText, false},
                               {"args", Want::kObject}}};
constexpr std::size_t kSpanId = 5;
constexpr std::size_t kParentSpanId = 6;
constexpr std::size_t kArgs = 7;

const ObjectRules kStepArgs{"args",
                            {{"stepName", Want::kText},
                             {"parentStepName", Want::kText, false},
                             {"errorCode", Want::kInt},
                             {"isSuccess", Want::kInt},
                             {"startTime", Want::kUint64},
                             {"endTime", Want::kUint64},
                             {"usedTime", Want::kUint64}}};
constexpr std::size_t kStepName = 0;
constexpr std::size_t kParentStepName = 1;
constexpr std::size_t kErrorCode = 2;
constexpr std::size_t kIsSuccess = 3;
constexpr std::size_t kStartTime = 4;
constexpr std::size_t kEndTime = 5;
constexpr std::size_t kUsedTime = 6;

// The one step whose parent's name the library knows.
constexpr std::string_view kChild = "create rds";
constexpr std::string_view kParent = "Connect";

void CheckSuccess(const Place& place, const Member& errorCode, const Member& isSuccess,
                  bool isMasked, Findings& findings) {
  const int expected = errorCode.Integer() == 0 ? 1 : 0;
  if (isSuccess.Integer() != expected) {
    findings.Add(FindingKind::kIsSuccess, place,
                 fmt::format("isSuccess is {}, but errorCode is {}",
                             isMasked ? kMask : isSuccess.text, isMasked ? kMask : errorCode.text));
  }
}

void CheckParentName(const Place& place, const Member& name, const Member* parentName,
                     Findings& findings) {
  const bool isChild = name.text == kChild;
  if (isChild && (parentName == nullptr || parentName->text != kParent)) {
    findings.Add(FindingKind::kParentStep, place,
                 fmt::format("the parentStepName of \"{}\" is not \"{}\"", kChild, kParent));
  } else if (!isChild && parentName != nullptr) {
    findings.Add(FindingKind::kParentStep, place,
                 fmt::format("a parentStepName, which only \"{}\" has", kChild));
  }
}

}  // namespace

void StepCheck::Check(const Place& place, const LogEntry& entry) {
  // The event ID of a step is free text, and may be that of a private metric.
  const bool isMasked = privacy_.IsMasked(entry.Text("eventId"));
  const auto& found = members_.Check(place, kStepRecord, entry.members, isMasked);
  if (found[kSpanId] != nullptr) {
    chain_.AddSpan(place, found[kSpanId]->text);
  }
  if (found[kParentSpanId] != nullptr) {
    chain_.AddParent(place, found[kParentSpanId]->text);
  }
  if (found[kArgs] != nullptr) {
    CheckArgs(place, entry, isMasked);
  }
}

void StepCheck::CheckArgs(const Place& place, const LogEntry& entry, bool isMasked) {
  const auto& found = members_.Check(place, kStepArgs, entry.args, isMasked);
  if (found[kErrorCode] != nullptr && found[kIsSuccess] != nullptr) {
    CheckSuccess(place, *found[kErrorCode], *found[kIsSuccess], isMasked, findings_);
  }
  CheckTimes(place, {found[kStartTime], found[kEndTime], found[kUsedTime]}, isMasked, findings_);
  if (found[kStepName] != nullptr) {
    CheckParentName(place, *found[kStepName], found[kParentStepName], findings_);
  }
}

}  // namespace vmetrics
