// What the framework's own plumbing reports: slow modules and changes of the transport.

#include <string>

#include "Common/Log.h"
#include "VIpc.h"
#include "VJson.h"
#include "VMetrics.h"
#include "VUpMetrics/Submission.h"

int SendModuleProcessTimeoutMetric(std::string moduleName, std::string name, VMessage* message,
                                   unsigned int cost) {
  using namespace vmetrics;
  if (message == nullptr) {
    VMETRICS_LOG(kVUpMetricsSource, kLogError, "Message NULL");
    return VMETRICS_REPORT_FAILED;
  }
  VJson::Value slow;
  slow.AddJsonValue("moduleName", moduleName);
  slow.AddJsonValue("name", name);
  slow.AddJsonValue("msgSrcModuleId", message->srcModuleId);
  slow.AddJsonValue("msgDstModuleId", message->dstModuleId);
  slow.AddJsonValue("msgType", message->msgType);
  slow.AddJsonValue("cost", cost);
  return Submit("VEVENT_MSG_PROCESS_SLOW", "", slow, VMETRICS_HEADER_INDEX_FRAMEWORK);
}

int SendTransChangeToMetrics(std::string reason, int errorCode, int averageLatency) {
  VJson::Value change;
  change.AddJsonValue("transChangeReason", reason);
  change.AddJsonValue("errorCode", errorCode);
  change.AddJsonValue("averageLatancy", averageLatency);  // So spelt: receivers match on it.
  return vmetrics::Submit("VEVENT_MSG_TRANS_CHANGE", "", change, VMETRICS_HEADER_INDEX_TRANSPORT);
}
