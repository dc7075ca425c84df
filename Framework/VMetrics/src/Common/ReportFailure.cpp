#include "Common/ReportFailure.h"

#include "Common/Log.h"
#include "VMetrics.h"

int vmetrics::ReportFailure(const char* source, const char* function, int line) {
  VMETRICS_LOG_AT(source, line, function, kLogError, "SendStringDataToMetric failed");
  return VMETRICS_REPORT_FAILED;
}
