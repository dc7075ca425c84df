/// How a step ended, by its record.
#ifndef VMETRICS_TOOL_STEPRESULT_H_
#define VMETRICS_TOOL_STEPRESULT_H_

#include <cstdint>
#include <optional>

#include "LogEntry.h"

namespace vmetrics {

struct StepResult {
  /// Nothing where the record has none, or one that is no 32-bit integer.
  std::optional<std::int32_t> errorCode;
  bool isFailed;  ///< By an error code other than 0, or an "isSuccess" of 0.

  /// The error code of the failure; nothing where there is no failure, or only "isSuccess" tells
  /// it.
  std::optional<std::int32_t> FailureCode() const {
    return errorCode == 0 ? std::nullopt : errorCode;
  }
};

/// `entry` has to be the record of a step.
StepResult StepResultOf(const LogEntry& entry);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STEPRESULT_H_
