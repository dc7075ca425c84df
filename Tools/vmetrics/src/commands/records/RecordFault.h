/// Why a record is not rendered as its sender meant it.
#ifndef VMETRICS_TOOL_RECORDFAULT_H_
#define VMETRICS_TOOL_RECORDFAULT_H_

#include <string>
#include <string_view>

#include "RecordKind.h"

namespace vmetrics {

// The texts are fit for a terminal and go on from the record's name: "has no args, as ...".

/// Of a whole record that was rendered as `line`; empty where it has its "args".
std::string FaultOf(RecordKind kind, std::string_view record, std::string_view line);

/// Of what is left at the end of a file: a record that is cut short, or a header that announces too
/// much.
std::string FaultOfRest(RecordKind kind, std::string_view rest);

/// Why a text is not JSON, "a value is missing at byte 7 of it, '}'"; empty where it is.
std::string JsonFaultOf(std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDFAULT_H_
