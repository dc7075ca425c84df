/// Well-formed UTF-8, as the Unicode standard's table of byte sequences has it.
#ifndef PLATFORM_UTF8_H_
#define PLATFORM_UTF8_H_

#include <cstddef>
#include <string_view>

namespace Utf8 {

/// What stands at the beginning of a text.
struct Sequence {
  std::size_t length;  ///< Bytes: a whole sequence, or the longest part that could begin one.
  bool wellFormed;
};

/// Looks at the first sequence of `text`, which must not be empty.
Sequence First(std::string_view text);

}  // namespace Utf8

#endif  // PLATFORM_UTF8_H_
