/// Identifiers of spans and transactions in little memory.
#ifndef VMETRICS_TOOL_IDENTIFIER_H_
#define VMETRICS_TOOL_IDENTIFIER_H_

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "trace/TextPool.h"

namespace vmetrics {

/// An identifier, or none. Two of the same pool are equal exactly when their texts are.
struct Identifier {
  enum class Kind : std::uint8_t {
    kNone,    ///< The empty text.
    kDigits,  ///< 36 characters as the library makes them: groups of lower-case hexadecimal digits.
    kText     ///< Any other text, which is in the pool.
  };

  std::array<std::uint8_t, 16> bytes{};  ///< The digits, or the text's number in the pool.
  Kind kind = Kind::kNone;

  bool operator==(const Identifier& other) const {
    return bytes == other.bytes && kind == other.kind;
  }
  bool operator!=(const Identifier& other) const { return !(*this == other); }
  bool operator<(const Identifier& other) const {
    return bytes != other.bytes ? bytes < other.bytes : kind < other.kind;
  }
};

Identifier IdentifierOf(std::string_view text, TextPool& pool);
std::string TextOf(const Identifier& identifier, const TextPool& pool);

}  // namespace vmetrics

template <>
struct std::hash<vmetrics::Identifier> {
  std::size_t operator()(const vmetrics::Identifier& identifier) const noexcept;
};

#endif  // VMETRICS_TOOL_IDENTIFIER_H_
