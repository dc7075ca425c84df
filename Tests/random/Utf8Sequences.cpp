// Every sequence of one, two and three bytes, as the library takes it apart and as the oracle does,
// which knows code points where the library knows ranges of bytes. What follows the first part of a
// sequence is a shorter one, so the first part is enough.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "JsonText.h"
#include "TextModel.h"
#include "Utf8.h"

namespace {

bool SameFirstPart(std::string_view text) {
  const Utf8::Sequence actual = Utf8::First(text);
  const Oracle::Part expected = Oracle::FirstPart(text);
  return actual.length == expected.length && actual.wellFormed == expected.wellFormed;
}

bool SameQuoted(std::string_view text) {
  char out[64];
  const char* const end = JsonText::WriteString(out, text);
  return std::string_view(out, static_cast<std::size_t>(end - out)) == Oracle::Quoted(text);
}

/// Calls `same` with all texts of `length` bytes whose first byte is at least `least`; false at the
/// first one of which that is false.
template <typename Same>
bool AllSame(int length, std::uint32_t least, Same same) {
  const std::uint32_t end = std::uint32_t{1} << 8 * length;
  for (std::uint32_t number = least << 8 * (length - 1); number < end; ++number) {
    char text[3];
    for (int i = 0; i < length; ++i) {
      text[i] = static_cast<char>(number >> 8 * (length - 1 - i) & 0xFF);
    }
    if (!same(std::string_view(text, static_cast<std::size_t>(length)))) {
      std::fprintf(stderr, "the %d bytes %0*X\n", length, 2 * length, number);
      return false;
    }
  }
  return true;
}

}  // namespace

int main() {
  bool same = true;
  for (int length = 1; length <= 3; ++length) {
    same = same && AllSame(length, 0, SameFirstPart);
  }
  for (int length = 1; length <= 2; ++length) {
    same = same && AllSame(length, 0, SameQuoted);
  }
  same = same && AllSame(3, 0xE0, SameQuoted);
  return same ? 0 : 1;
}
