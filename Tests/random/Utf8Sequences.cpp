// Every sequence of one, two and three bytes, as the library takes it apart and as the oracle does,
// which knows code points where the library knows ranges of bytes. What follows the first part of a
// sequence is a shorter one, so the first part is enough.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "JsonText.h"
#include "StrictJson.h"
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

/// The text as it stands in JSON that is read: also what ends a string, or escapes, or must not be.
bool SameParsed(std::string_view text) {
  const std::string quoted = '"' + std::string(text) + '"';
  char out[64];
  const char* const end = JsonText::WriteCompacted(out, quoted);
  const std::optional<std::string> expected = Oracle::Compacted(quoted);
  return end == nullptr ? !expected
                        : expected == std::string(out, static_cast<std::size_t>(end - out));
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
    same = same && AllSame(length, 0, SameQuoted) && AllSame(length, 0, SameParsed);
  }
  same = same && AllSame(3, 0xE0, SameQuoted) && AllSame(3, 0xC0, SameParsed);
  return same ? 0 : 1;
}
