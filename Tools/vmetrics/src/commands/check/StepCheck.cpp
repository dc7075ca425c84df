#include "StepCheck.h"

#include <fmt/format.h>

#include <string_view>

#include "StepTimes.h"

namespace vmetrics {

namespace {

const ObjectRules kStepRecord{"a step record",
                              {{"eventId", Want::NonEmptyText, false},
                               {"timestamp", Want::Uint64},
                               {"terminalId", Want::ZeroText},
                               {"type", Want::TwoText},
                               {"transactionId", Want::NonEmptyText},
                               {"spanId", Want::NonEmptyText},
                               {"parentSpanId", Want::NonEmptyText, false},
                               {"args", Want::Object}}};
constexpr std::size_t kSpanId = 5;
constexpr std::size_t kParentSpanId = 6;
constexpr std::size_t kArgs = 7;

const ObjectRules kStepArgs{"args",
                            {{"stepName", Want::Text},
                             {"parentStepName", Want::Text, false},
                             {"errorCode", Want::Int},
                             {"isSuccess", Want::Int},
                             {"startTime", Want::Uint64},
                             {"endTime", Want::Uint64},
                             {"usedTime", Want::Uint64}}};
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
                  Findings& findings) {
  const int expected = errorCode.Integer() == 0 ? 1 : 0;
  if (isSuccess.Integer() != expected) {
    findings.Add(
        FindingKind::IsSuccess, place,
        fmt::format("isSuccess is {}, but errorCode is {}", isSuccess.text, errorCode.text));
  }
}

void CheckParentName(const Place& place, const Member& name, const Member* parentName,
                     Findings& findings) {
  const bool isChild = name.text == kChild;
  if (isChild && (parentName == nullptr || parentName->text != kParent)) {
    findings.Add(FindingKind::ParentStep, place,
                 fmt::format("the parentStepName of \"{}\" is not \"{}\"", kChild, kParent));
  } else if (!isChild && parentName != nullptr) {
    findings.Add(FindingKind::ParentStep, place,
                 fmt::format("a parentStepName, which only \"{}\" has", kChild));
  }
}

}  // namespace

void StepCheck::Check(const Place& place, const LogEntry& entry) {
  const auto& found = members_.Check(place, kStepRecord, entry.members);
  if (found[kSpanId] != nullptr) {
    chain_.AddSpan(place, found[kSpanId]->text);
  }
  if (found[kParentSpanId] != nullptr) {
    chain_.AddParent(place, found[kParentSpanId]->text);
  }
  if (found[kArgs] != nullptr) {
    CheckArgs(place, entry);
  }
}

void StepCheck::CheckArgs(const Place& place, const LogEntry& entry) {
  const auto& found = members_.Check(place, kStepArgs, entry.args);
  if (found[kErrorCode] != nullptr && found[kIsSuccess] != nullptr) {
    CheckSuccess(place, *found[kErrorCode], *found[kIsSuccess], findings_);
  }
  CheckTimes(place, {found[kStartTime], found[kEndTime], found[kUsedTime]}, findings_);
  if (found[kStepName] != nullptr) {
    CheckParentName(place, *found[kStepName], found[kParentStepName], findings_);
  }
}

}  // namespace vmetrics
