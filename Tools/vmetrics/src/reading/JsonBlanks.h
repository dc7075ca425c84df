/// White space between the parts of a JSON text.
#ifndef VMETRICS_TOOL_JSONBLANKS_H_
#define VMETRICS_TOOL_JSONBLANKS_H_

#include <string_view>

namespace vmetrics {

constexpr std::string_view kJsonBlanks = " \t\r\n";

inline std::string_view WithoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kJsonBlanks) + 1);
}

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_JSONBLANKS_H_
