// The entry to step tracing.

#include <cstdlib>
#include <new>

#include "Common/Log.h"
#include "DotRecord/DotRecordManager.h"
#include "VMetrics.h"

namespace vmetrics {
namespace {

/// The table of the process, made by the first event that asks for it. At exit it is cleared, which
/// is the process's last word, but not destroyed: exit handlers older than that event come later.
DotRecordManager& TheManager() {
  alignas(DotRecordManager) static unsigned char room[sizeof(DotRecordManager)];
  static DotRecordManager& manager = []() -> DotRecordManager& {
    static_cast<void>(std::atexit([] { TheManager().ResourceClear(); }));
    return *new (room) DotRecordManager;
  }();
  return manager;
}

}  // namespace
}  // namespace vmetrics

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
  DotTransaction* const transaction = GetDotTransaction(TheManager(), record.transactionId);
  if (transaction == nullptr) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "object is nullptr");
    return VMETRICS_INVALID;
  }
  return transaction->InsertRecord(&record);
}
