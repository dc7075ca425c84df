/// White space around the fields of a definition.
#ifndef VMETRICS_TOOL_BLANKS_H_
#define VMETRICS_TOOL_BLANKS_H_

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vmetrics {

/// Line breaks are none: they are the affair of the line.
constexpr std::string_view kBlanks = " \t\v\f";

inline std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  const std::size_t end = text.find_last_not_of(kBlanks) + 1;
  return text.substr(begin, end - std::min(begin, end));
}

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_BLANKS_H_
