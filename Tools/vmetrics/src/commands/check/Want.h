/// What the values of members are to be.
#ifndef VMETRICS_TOOL_WANT_H_
#define VMETRICS_TOOL_WANT_H_

#include <cstdint>
#include <string_view>

#include "LogEntry.h"

namespace vmetrics {

enum class Want : std::uint8_t {
  kAnything,
  kText,
  kNonEmptyText,
  kNumberText,  ///< The decimal text of a signed number of 32 bits.
  kZeroText,    ///< "0"
  kTwoText,     ///< "2"
  kInt,
  kInt64,
  kUint64,
  kDouble,
  kBoolean,
  kObject
};

bool IsWanted(const Member& member, Want want);

/// "an unsigned 64-bit number".
std::string_view NameOf(Want want);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_WANT_H_
