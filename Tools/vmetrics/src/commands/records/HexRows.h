/// Bytes as rows of hexadecimal digits.
#ifndef VMETRICS_TOOL_HEXROWS_H_
#define VMETRICS_TOOL_HEXROWS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vmetrics {

/// "07 00 00 00", `perRow` bytes in each, the last with what is left.
std::vector<std::string> HexRows(std::string_view bytes, std::size_t perRow);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_HEXROWS_H_
