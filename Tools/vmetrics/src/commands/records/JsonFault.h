/// Where a text stops being JSON.
#ifndef VMETRICS_TOOL_JSONFAULT_H_
#define VMETRICS_TOOL_JSONFAULT_H_

#include <cstddef>
#include <optional>
#include <string_view>

namespace vmetrics {

struct JsonFault {
  /// The first byte that makes it impossible for the text to be JSON, whatever follows; the text's
  /// size where only something behind it is missing.
  std::size_t offset;
  /// What is wrong there: "a value is missing".
  std::string_view problem;
};

/// The fault of `text` under the rules of the platform's parser: RFC 8259, well-formed UTF-8, no
/// lone surrogate escape, no more than 128 levels. None where it is JSON.
std::optional<JsonFault> FindJsonFault(std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_JSONFAULT_H_
