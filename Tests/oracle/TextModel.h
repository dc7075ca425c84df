/// Texts as lines show them: UTF-8 repaired, then quoted.
#ifndef ORACLE_TEXTMODEL_H_
#define ORACLE_TEXTMODEL_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace Oracle {

/// The beginning of a text: a whole UTF-8 sequence, or the longest part that could begin one.
struct Part {
  std::size_t length;
  bool wellFormed;
};

/// Decides by the arithmetic of the encoding which code points a text can begin with, not by tables
/// of bytes. The text must not be empty.
Part FirstPart(std::string_view text);

/// The text with U+FFFD in place of each ill-formed part.
std::string Repaired(std::string_view text);

/// The text as a JSON string.
std::string Quoted(std::string_view text);

}  // namespace Oracle

#endif  // ORACLE_TEXTMODEL_H_
