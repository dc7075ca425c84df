/// The types of values: how a user writes one, how it is packed, what its bytes say.
#ifndef VMETRICS_TOOL_VALUETYPE_H_
#define VMETRICS_TOOL_VALUETYPE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vmetrics {

struct ValueType {
  std::string_view name;  ///< As the catalogue has it.
  std::size_t width;      ///< Bytes that are read; 0 for a text, which has as many as it has.
  std::string_view form;  ///< What its values look like to a user: "a number".

  /// The bytes of a value as a user writes it; none if it is not one of this type.
  std::optional<std::string> (*pack)(const std::string& value);

  /// What `width` bytes say, or all the bytes of a text, for a terminal.
  std::string (*show)(std::string_view bytes);

  bool IsText() const { return width == 0; }
};

/// `text` in quotes for a terminal, the beginning of it where it is long.
std::string ShowText(std::string_view text);

/// Null for a type that renders as an empty object.
const ValueType* FindValueType(std::string_view name);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_VALUETYPE_H_
