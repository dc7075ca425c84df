/// The one form in which the framework writes to the diagnostics channel.
#ifndef VMETRICS_COMMON_LOG_H_
#define VMETRICS_COMMON_LOG_H_

#include "VLogger.h"

namespace vmetrics {

constexpr int kLogError = 1;
constexpr int kLogWarning = 2;
constexpr int kLogInformation = 3;

// The names under which the units of the framework appear in log lines.
constexpr char kVMetricsSource[] = "Framework/VMetrics/src/VMetrics";
constexpr char kVUpMetricsSource[] = "Framework/VMetrics/src/VUpMetrics";
constexpr char kUsbMetricsSource[] = "Framework/VMetrics/src/UsbMetrics";
constexpr char kDotRecordSource[] = "Framework/VMetrics/src/DotRecord";

}  // namespace vmetrics

/// Logs a line of the unit `source` as coming from `line` and `function`. Macros, so that the line
/// is that of the call and the compiler checks the arguments against the format.
#define VMETRICS_LOG_AT(source, line, function, level, ...) \
  VLogger::GetInstance().Log(source, line, function, " ", "", level, __VA_ARGS__)

/// The same, as coming from the line that calls.
#define VMETRICS_LOG_AS(source, function, level, ...) \
  VMETRICS_LOG_AT(source, __LINE__, function, level, __VA_ARGS__)

/// The same, as coming from the line and the function that call.
#define VMETRICS_LOG(source, level, ...) VMETRICS_LOG_AS(source, __func__, level, __VA_ARGS__)

#endif  // VMETRICS_COMMON_LOG_H_
