#include "DotRecord/StepRecord.h"

#include "VDateTime.h"
#include "VJson.h"
#include "VLogger.h"

namespace vmetrics {
namespace {

void AddUnlessEmpty(VJson::Value& object, const char* key, const std::string& value) {
  if (!value.empty()) {
    object.AddJsonValue(key, value);
  }
}

VJson::Value StepArguments(unsigned long startTick, unsigned long endTick,
                           const DotStepRecord& record) {
  VJson::Value arguments;
  arguments.AddJsonValue("stepName", record.stepName);
  if (record.stepName == "create rds") {
    arguments.AddJsonValue("parentStepName", "Connect");  // Whatever the caller names as parent.
  }
  arguments.AddJsonValue("errorCode", record.errorCode);
  arguments.AddJsonValue("isSuccess", record.errorCode == 0 ? 1 : 0);
  arguments.AddJsonValue("startTime", startTick);
  arguments.AddJsonValue("endTime", endTick);
  arguments.AddJsonValue("usedTime", endTick - startTick);
  return arguments;
}

}  // namespace

void ReportStep(unsigned long startTick, unsigned long endTick, const DotStepRecord& record) {
  VJson::Value step;
  AddUnlessEmpty(step, "eventId", record.eventId);
  step.AddJsonValue("timestamp", VDateTime::GetCurrentTick());
  step.AddJsonValue("terminalId", "0");
  step.AddJsonValue("type", "2");
  AddUnlessEmpty(step, "transactionId", record.transactionId);
  AddUnlessEmpty(step, "spanId", record.spanId);
  AddUnlessEmpty(step, "parentSpanId", record.parentSpanId);
  step.Add("args", StepArguments(startTick, endTick, record));
  const std::string text = step.ToString();
  VLogger::GetInstance().Metrics("%s", text.c_str());
}

}  // namespace vmetrics
