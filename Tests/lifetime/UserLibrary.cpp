// What a host loads that does not know the library: it brings the library along, and takes it away.

#include "ProbeCalls.h"
#include "VPlatformConfig.h"

/// Uses everything; metrics go to the file `metrics` unless it is null. Returns whether all worked.
extern "C" bool UseLibrary(const char* metrics) {
  return (metrics == nullptr || VPlatformConfig::SetMetricsFile(metrics)) &&
         RenderEverything().size() == 6 && ReportEverything().empty() && TraceStep("t", "s");
}
