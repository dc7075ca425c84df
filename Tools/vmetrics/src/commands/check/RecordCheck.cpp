#include "RecordCheck.h"

#include <fmt/format.h>

#include <cstdint>
#include <optional>

#include "MetricLookup.h"
#include "NameList.h"
#include "StepTimes.h"

namespace vmetrics {

namespace {

const ObjectRules kNumericRecord{"a numeric record",
                                 {{"eventId", Want::kNumberText},
                                  {"timestamp", Want::kUint64},
                                  {"moduleId", Want::kUint64},
                                  {"terminalId", Want::kNumberText},
                                  {"args", Want::kAnything, false}}};
constexpr std::size_t kModuleId = 2;

const ObjectRules kEventRecord{"an event",
                               {{"eventId", Want::kText},
                                {"timestamp", Want::kUint64},
                                {"terminalId", Want::kNumberText},
                                {"type", Want::kNumberText},
                                {"transactionId", Want::kText},
                                {"businessType", Want::kText},
                                {"serviceName", Want::kText},
                                {"userName", Want::kText, true, true},
                                {"args", Want::kAnything, false}}};
constexpr std::size_t kEventId = 0;

/// The reporter's event that the library leaves to the host to register.
constexpr std::string_view kUnregistered = "nox_user_operation";

/// The event of a client's connecting, whose args are those of a step.
constexpr std::string_view kConnecting = "nox_user_connect";

enum class LineKind { kNumeric, kEvent, kStep, kNone };

/// Tells the kinds apart by a member that only one of them has, or else by what is left.
LineKind KindOf(const LogEntry& entry) {
  for (const Member& member : entry.members) {
    if (member.key == "moduleId") {
      return LineKind::kNumeric;
    }
    if (member.key == "spanId" || member.key == "parentSpanId") {
      return LineKind::kStep;
    }
    if (member.key == "businessType" || member.key == "serviceName" || member.key == "userName") {
      return LineKind::kEvent;
    }
  }
  if (entry.FindInArgs("stepName") != nullptr && entry.FindInArgs("errorCode") != nullptr) {
    return LineKind::kStep;
  }
  if (NumericId(entry.Text("eventId"))) {
    return LineKind::kNumeric;
  }
  return entry.Find("eventId") != nullptr ? LineKind::kEvent : LineKind::kNone;
}

std::uint64_t ModuleOf(int id) { return static_cast<std::uint32_t>(id) >> 16U; }

}  // namespace

void RecordCheck::Check(const Place& place, const LogEntry& entry) {
  switch (KindOf(entry)) {
    case LineKind::kNumeric:
      CheckNumeric(place, entry);
      break;
    case LineKind::kEvent:
      CheckEvent(place, entry);
      break;
    case LineKind::kStep:
      steps_.Check(place, entry);
      break;
    case LineKind::kNone:
      findings_.Add(FindingKind::kNoRecord, place, "a JSON object, but no record of the library");
      break;
  }
}

void RecordCheck::CheckNumeric(const Place& place, const LogEntry& entry) {
  const auto& found = members_.Check(place, kNumericRecord, entry.members);
  if (found[kEventId] == nullptr) {
    return;
  }
  const std::string_view eventId = found[kEventId]->text;
  const int id = NumericId(eventId).value_or(0);
  if (found[kModuleId] != nullptr && found[kModuleId]->Unsigned() != ModuleOf(id)) {
    findings_.Add(FindingKind::kMember, place,
                  fmt::format("moduleId is {}, but metric {} belongs to module {}",
                              found[kModuleId]->text, eventId, ModuleOf(id)));
  }
  if (const MetricEntry* metric = FindNumericMetric(id)) {
    args_.Check(place, eventId, *metric, entry);
    return;
  }
  findings_.Add(FindingKind::kUnknownId, place,
                fmt::format("metric {} is not in the catalogue", eventId));
  args_.CheckAny(place, eventId, entry);
}

void RecordCheck::CheckEvent(const Place& place, const LogEntry& entry) {
  const auto& found = members_.Check(place, kEventRecord, entry.members);
  if (found[kEventId] == nullptr) {
    return;
  }
  const std::string_view eventId = found[kEventId]->text;
  if (eventId == kConnecting) {
    CheckTimes(
        place,
        {entry.FindInArgs("startTime"), entry.FindInArgs("endTime"), entry.FindInArgs("usedTime")},
        privacy_.IsMasked(eventId), findings_);
  }
  if (const MetricEntry* metric = FindEventMetric(eventId)) {
    args_.Check(place, eventId, *metric, entry);
    return;
  }
  if (eventId != kUnregistered) {
    findings_.Add(FindingKind::kUnknownId, place,
                  fmt::format("event \"{}\" is not in the catalogue", Shortened(eventId)));
  }
  args_.CheckAny(place, eventId, entry);
}

}  // namespace vmetrics
