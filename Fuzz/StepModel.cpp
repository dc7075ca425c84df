#include "StepModel.h"

#include <utility>

#include "RecordModel.h"
#include "VMetrics.h"

namespace {

constexpr std::size_t kMostTransactions = 100;

StepOutcome Failure(int status, const std::string& message) {
  return {status, {message}, "", "", {}};
}

Oracle::Object Arguments(const StepEvent& event, std::uint64_t start) {
  using namespace Oracle;
  Object arguments = {{"stepName", Text(*event.step)}};
  if (*event.step == "create rds") {
    arguments.push_back({"parentStepName", Text("Connect")});
  }
  arguments.push_back({"errorCode", Integer(event.errorCode)});
  arguments.push_back({"isSuccess", Integer(event.errorCode == 0 ? 1 : 0)});
  arguments.push_back({"startTime", Unsigned(start)});
  arguments.push_back({"endTime", Unsigned(event.tick)});
  arguments.push_back({"usedTime", Unsigned(event.tick - start)});
  return arguments;
}

void AddUnlessEmpty(const char* key, const std::string& text, Oracle::Object& object) {
  if (!text.empty()) {
    object.push_back({key, Oracle::Text(text)});
  }
}

void Describe(const Oracle::Object& record, StepOutcome& outcome) {
  outcome.line = Oracle::Line(record);
  for (const Oracle::Member& member : record) {
    outcome.keys += (outcome.keys.empty() ? "" : ",") + member.key;
  }
}

}  // namespace

std::string SpanFileText(const std::string& content) { return content.substr(0, 128).c_str(); }

StepOutcome StepModel::Handle(const StepEvent& event) {
  const std::pair<const char*, const std::optional<std::string>*> arguments[] = {
      {"transactionId", &event.transaction},
      {"eventId", &event.event},
      {"stepName", &event.step},
      {"spanParentId", &event.parent}};
  for (const auto& [name, text] : arguments) {
    if (!text->has_value()) {
      return Failure(VMETRICS_INVALID, std::string(name) + " is nullptr");
    }
  }
  if (event.transaction->empty()) {
    return Failure(VMETRICS_INVALID, "object is nullptr");
  }
  StepOutcome outcome{VMETRICS_OK, {}, "", "", {}};
  if (transactions_.count(*event.transaction) == 0 && transactions_.size() == kMostTransactions) {
    transactions_.clear();
    outcome.logged = {"ResourceClear"};
  }
  Transaction& transaction = transactions_[*event.transaction];
  if (event.status == 0) {
    transaction[*event.step] = event.tick;
    return outcome;
  }
  StepOutcome end = End(event, transaction);
  end.logged.insert(end.logged.begin(), outcome.logged.begin(), outcome.logged.end());
  return end;
}

StepOutcome StepModel::End(const StepEvent& event, Transaction& transaction) {
  if (event.status != 1) {
    return Failure(VMETRICS_STEP_ERROR,
                   "status[" + std::to_string(event.status) + "] is not exist");
  }
  const auto start = transaction.find(*event.step);
  if (start == transaction.end()) {
    return Failure(VMETRICS_STEP_ERROR, "stepName[" + *event.step + "] has not startEvent");
  }
  StepOutcome outcome{VMETRICS_OK, {}, "", "", {}};
  const bool fromFile = *event.parent == "ParentSpanId";
  const std::string parent = fromFile ? TakeParent(event, outcome) : *event.parent;
  Publish(event, fromFile ? event.refuseSecondLock : event.refuseFirstLock, outcome);
  Oracle::Object record;
  AddUnlessEmpty("eventId", *event.event, record);
  record.push_back({"timestamp", Oracle::Unsigned(event.endTick)});
  record.push_back({"terminalId", Oracle::Text("0")});
  record.push_back({"type", Oracle::Text("2")});
  record.push_back({"transactionId", Oracle::Text(*event.transaction)});
  record.push_back({"spanId", Oracle::Text(kIdentifier)});
  AddUnlessEmpty("parentSpanId", parent, record);
  record.push_back(
      {"args", {Oracle::Value::Kind::kObject, "", 0, false, Arguments(event, start->second)}});
  Describe(record, outcome);
  transaction.erase(start);
  return outcome;
}

std::string StepModel::TakeParent(const StepEvent& event, StepOutcome& outcome) {
  outcome.fileOperations.push_back("lock exclusive spanId");
  if (event.refuseFirstLock) {
    return "ParentSpanId";
  }
  outcome.fileOperations.insert(outcome.fileOperations.end(), {"read 128 spanId", "unlock spanId"});
  file = file.value_or("");
  return SpanFileText(*file);
}

void StepModel::Publish(const StepEvent& event, bool refused, StepOutcome& outcome) {
  outcome.fileOperations.push_back("lock exclusive spanId");
  if (refused) {
    return;
  }
  outcome.fileOperations.insert(outcome.fileOperations.end(), {"write 36 spanId", "unlock spanId"});
  file = file.value_or("");
  if (event.writeLimit >= 0) {
    outcome.written = static_cast<std::size_t>(event.writeLimit);
  }
  if (event.writeLimit < 36) {
    outcome.logged.push_back("write failed count = " + std::to_string(event.writeLimit) +
                             ", spanId.size = 36");
  }
}
