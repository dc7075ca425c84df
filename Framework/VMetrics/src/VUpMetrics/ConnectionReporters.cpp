// What the desktop client reports about its connecting. The members' types are part of what
// receivers rely on, differing ones for "usedTime" included, and so is the spelling of the client's
// name, lower case in steps and upper case in operations.

#include <string>

#include "VDateTime.h"
#include "VJson.h"
#include "VMetrics.h"
#include "VUpMetrics/Submission.h"

namespace {

constexpr char kConnectEvent[] = "nox_user_connect";
constexpr char kOperationEvent[] = "nox_user_operation";
constexpr char kClientSteps[] = "zelviewer";
constexpr char kClientOperations[] = "ZELVIEWER";

/// The members with which every step of the client begins.
VJson::Value ConnectStep(const char* stepName, int isSuccess, unsigned long startTime) {
  VJson::Value step;
  step.AddJsonValue("stepName", stepName);
  step.AddJsonValue("source", kClientSteps);
  step.AddJsonValue("parentStepName", "Connect");
  step.AddJsonValue("isSuccess", isSuccess);
  step.AddJsonValue("startTime", startTime);
  return step;
}

}  // namespace

int SendBizboxInsToMetric() {
  const unsigned long now = VDateTime::GetCurrentTick();
  VJson::Value step = ConnectStep("bizboxCreation", 1, now);
  step.AddJsonValue("endTime", now);
  step.AddJsonValue("resultMsg", "ok");
  step.AddJsonValue("usedTime", 0);
  return vmetrics::Submit(kConnectEvent, kClientSteps, step, VMETRICS_HEADER_INDEX_CONNECTION);
}

int SendConnectVagToMetric(unsigned long startTime, int isSuccess) {
  VJson::Value step = ConnectStep("FirstPack", isSuccess, startTime);
  const unsigned long endTime = VDateTime::GetCurrentTick();
  step.AddJsonValue("endTime", endTime);
  step.AddJsonValue("usedTime", endTime - startTime);
  if (isSuccess == 0) {
    step.AddJsonValue("errorMsg", "timeout");
  }
  return vmetrics::Submit(kConnectEvent, kClientSteps, step, VMETRICS_HEADER_INDEX_CONNECTION);
}

int SendConnectVagToCommonMetric(const std::string& first, const std::string& second,
                                 bool success) {
  VJson::Value operation;
  // "Trying to connect to the gateway", an "automatic flow".
  operation.AddJsonValue("optName", "尝试连接vag");
  operation.AddJsonValue("optType", "自动流程");
  operation.AddJsonValue("optPosition", kClientOperations);
  operation.AddJsonValue("optState", success ? "success" : "fail");
  operation.AddJsonValue("optDesc", first + ":" + second);
  return vmetrics::Submit(kOperationEvent, kClientOperations, operation,
                          VMETRICS_HEADER_INDEX_CONNECTION);
}
