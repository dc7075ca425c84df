#include "DotRecord/DotTransaction.h"

#include "Common/Log.h"
#include "DotRecord/SpanFile.h"
#include "VDateTime.h"
#include "VMetrics.h"

namespace vmetrics {

int DotTransaction::InsertRecord(DotStepRecord* record) {
  const unsigned long now = VDateTime::GetCurrentTick();
  if (record->status == kStepStarts) {
    stepStarts[record->stepName] = now;
    return VMETRICS_OK;
  }
  if (record->status != kStepEnds) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "status[%d] is not exist", record->status);
    return VMETRICS_STEP_ERROR;
  }
  const auto start = stepStarts.find(record->stepName);
  if (start == stepStarts.end()) {
    VMETRICS_LOG(kDotRecordSource, kLogError, "stepName[%s] has not startEvent",
                 record->stepName.c_str());
    return VMETRICS_STEP_ERROR;
  }
  record->spanId = VMetrics::GenerateUuid();
  if (record->parentSpanId == kParentSpanIdPlaceholder) {
    record->parentSpanId = TakeParentSpanId();
  }
  // The file is locked anew: whatever was read from it, this step's own identifier comes next.
  PublishSpanId(record->spanId);
  ReportStep(start->second, now, *record);
  stepStarts.erase(start);
  return VMETRICS_OK;
}

}  // namespace vmetrics
