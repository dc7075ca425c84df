/// A record as text that people read and decode --hex takes.
#ifndef VMETRICS_TOOL_RECORDHEX_H_
#define VMETRICS_TOOL_RECORDHEX_H_

#include <string>
#include <string_view>

#include "RecordKind.h"

namespace vmetrics {

/// The bytes field by field, "3c 00 00 00  # data: 60", with a blank line at the end.
std::string RecordAsHex(RecordKind kind, std::string_view record);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDHEX_H_
