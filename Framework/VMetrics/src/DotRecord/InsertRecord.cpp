// The entry to step tracing.

#include "Common/Log.h"
#include "DotRecord/DotRecordManager.h"
#include "VMetrics.h"

int VMetrics::InsertRecord(int status, const char* transactionId, const char* eventId,
                           const char* stepName, const char* spanParentId, int errorCode) {
  using namespace vmetrics;
  if (transactionId == nullptr) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "transactionId is nullptr");
    return VMETRICS_INVALID;
  }
  if (eventId == nullptr) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "eventId is nullptr");
    return VMETRICS_INVALID;
  }
  if (stepName == nullptr) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "stepName is nullptr");
    return VMETRICS_INVALID;
  }
  if (spanParentId == nullptr) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "spanParentId is nullptr");
    return VMETRICS_INVALID;
  }
  DotStepRecord record{status, 4, errorCode, transactionId, eventId, stepName, "", spanParentId};
  // Made by the first event that comes this far; says its last word when the process exits.
  static DotRecordManager manager;
  DotTransaction* const transaction = GetDotTransaction(manager, record.transactionId);
  if (transaction == nullptr) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "object is nullptr");
    return VMETRICS_INVALID;
  }
  return transaction->InsertRecord(&record);
}
