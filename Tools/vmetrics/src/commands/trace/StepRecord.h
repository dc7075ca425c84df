/// What a metrics line says of a step.
#ifndef VMETRICS_TOOL_STEPRECORD_H_
#define VMETRICS_TOOL_STEPRECORD_H_

#include <cstdint>
#include <limits>
#include <string_view>

#include "LogEntry.h"

namespace vmetrics {

/// What stands for a tick that a line lacks or that is no integer.
constexpr std::int64_t kNoTick = std::numeric_limits<std::int64_t>::min();

/// Whether the tick is a date that can be written, from 1970 to 9999.
constexpr bool IsDate(std::int64_t tick) { return tick >= 0 && tick <= 253402300799999; }

/// Between two events of one transaction so much time is not expected, in milliseconds: 31 days.
constexpr std::int64_t kLongestPause = std::int64_t{31} * 24 * 3600 * 1000;

/// Texts that the line lacks are empty; all are the entry's.
struct StepRecord {
  std::string_view transactionId;
  std::string_view spanId;
  std::string_view parentSpanId;
  std::string_view eventId;
  std::string_view name;
  std::string_view parentName;
  std::int64_t start = kNoTick;
  std::int64_t end = kNoTick;
  std::int64_t written = kNoTick;  ///< When the line was.
  std::int32_t errorCode = 0;
  bool hasErrorCode = false;
  bool isFailed = false;
};

/// `entry` has to be the record of a step.
StepRecord StepRecordOf(const LogEntry& entry);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STEPRECORD_H_
