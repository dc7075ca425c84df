/// How a reporter fails.
#ifndef VMETRICS_COMMON_REPORTFAILURE_H_
#define VMETRICS_COMMON_REPORTFAILURE_H_

namespace vmetrics {

/// Logs that a report could not be submitted, as coming from the line and the function that call,
/// and returns the status that tells so. `source`: the unit of the caller.
int ReportFailure(const char* source, const char* function = __builtin_FUNCTION(),
                  int line = __builtin_LINE());

}  // namespace vmetrics

#endif  // VMETRICS_COMMON_REPORTFAILURE_H_
