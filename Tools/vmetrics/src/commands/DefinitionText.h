/// The text of one definition, "ID;type;name;private", as the library's registration reads it.
#ifndef VMETRICS_TOOL_DEFINITIONTEXT_H_
#define VMETRICS_TOOL_DEFINITIONTEXT_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vmetrics {

/// What some editors put in front of a text in UTF-8.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Which of the two catalogues a definition adds to.
enum class DefinitionKind { kNumeric, kEvent };

/// The fields of a definition, pointing into its text.
struct DefinitionFields {
  explicit DefinitionFields(std::string_view text);

  std::string_view id;
  std::string_view type;
  std::string_view name;
  std::string_view privateFlag;
  std::size_t count = 0;  ///< How many of the four there are.
  std::string_view rest;  ///< What stands behind the fourth, without the separator.
  bool hasEmpty =
      false;  ///< Whether separators stand in a row, or one in front of the first field.
};

/// An ID in decimal, as strtol reads it.
struct DecimalId {
  explicit DecimalId(std::string_view text);

  int key = 0;  ///< What is registered: the low 32 bits.
  long value = 0;
  bool isNumber = false;
  bool isOutOfRange = false;  ///< Whether a long does not hold the number; `value` is the nearest.
  std::string_view trailing;  ///< What stands behind the digits.
};

/// Has the library register the definition. Returns its status.
int RegisterDefinition(DefinitionKind kind, std::string_view text);

/// Why the library refuses the definition as the catalogue is now, fit for a terminal; empty if it
/// does not.
std::string RefusalOf(DefinitionKind kind, std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_DEFINITIONTEXT_H_
