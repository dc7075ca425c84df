/// What a record is about.
#ifndef VMETRICS_TOOL_RECORDMETRIC_H_
#define VMETRICS_TOOL_RECORDMETRIC_H_

#include <VMetrics.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "RecordKind.h"

namespace vmetrics {

/// The number at `offset` of a record, in host byte order.
std::uint32_t NumberAt(std::string_view record, std::size_t offset);

/// The text at `offset` of a record with an event ID as it is rendered: up to the first NUL, if
/// need be through the fields behind its own.
std::string_view TextAt(std::string_view record, std::size_t offset);

/// The ID of a record that holds its header, for a terminal: "302710785 (0x120B0001)" or
/// "\"nox_user_connect\"".
std::string IdOf(RecordKind kind, std::string_view record);

/// The catalogue's entry for that ID; null where there is none.
const MetricEntry* MetricOf(RecordKind kind, std::string_view record);

/// The value up to its first NUL, which is as far as texts are read.
std::string_view UpToNul(std::string_view value);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDMETRIC_H_
