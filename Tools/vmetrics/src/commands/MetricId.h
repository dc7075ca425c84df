/// The parts of a numeric metric ID, by the convention that the built-in ones follow.
#ifndef VMETRICS_TOOL_METRICID_H_
#define VMETRICS_TOOL_METRICID_H_

#include <optional>
#include <string>
#include <string_view>

namespace vmetrics {

/// The functional area, bits 31 to 24.
unsigned int GroupOf(int id);

/// The side that reports the metric, bits 23 to 16.
unsigned int SideOf(int id);

/// "display"; empty for a group that no built-in metric belongs to.
std::string_view TitleOfGroup(unsigned int group);

/// "client" or "server"; empty for any other side.
std::string_view NameOfSide(unsigned int side);

/// "0x120A0001".
std::string HexadecimalId(int id);

/// "0x12", of a group or a side.
std::string HexadecimalByte(unsigned int byte);

/// The ID that a user writes in decimal, with its sign or without, or in hexadecimal with "0x" in
/// front; nothing if `text` is no such number of 32 bits.
std::optional<int> ParseMetricId(std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_METRICID_H_
