/// Steps as the library traces them, and the files they need.
#ifndef BENCHMARKS_STEPS_H_
#define BENCHMARKS_STEPS_H_

#include "LineFiles.h"
#include "ScratchFiles.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

/// Makes ready for steps, whose lines go to kOurLines. False when a file is refused.
inline bool PrepareSteps() {
  static const bool done = VPlatformConfig::SetMetricsFile(ScratchFiles::Get().Path(kOurLines)) &&
                           VPlatformConfig::SetLockFileDirectory(ScratchFiles::Get().Path(""));
  return done;
}

/// The start and the end of a step whose parent is taken from the span file.
inline bool StepOurs() {
  const auto report = [](int status) {
    return VMetrics::InsertRecord(status, "order-7", "LOGIN", "authenticate", "ParentSpanId", 0);
  };
  return report(0) == VMETRICS_OK && report(1) == VMETRICS_OK;
}

#endif  // BENCHMARKS_STEPS_H_
