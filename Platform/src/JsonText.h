/// The pieces that JSON texts are made of. None follows a locale.
#ifndef PLATFORM_JSONTEXT_H_
#define PLATFORM_JSONTEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace JsonText {

// The writers put a text at `out` and return its end. They allocate nothing: the caller sees to it
// that there is room.

/// What a writer of texts needs beyond its text, as it copies eight bytes at a time.
constexpr std::size_t kPlainRoom = 8;

/// The room in bytes that WriteString needs for `text`, every byte looked at.
std::size_t LongStringRoom(std::string_view text);

/// The room in bytes that WriteString needs for `text`: never too little. For a short text it is
/// the worst case, which is not worth a closer look.
inline std::size_t StringRoom(std::string_view text) {
  constexpr std::size_t kShort = 40;
  constexpr std::size_t kLongestEscape = 6;
  return text.size() <= kShort ? kLongestEscape * text.size() + 2 + kPlainRoom
                               : LongStringRoom(text);
}

/// Writes `text` as a JSON string, quotes included. `"`, `\` and the control characters 0x00 to
/// 0x1F and 0x7F are escaped; each maximal ill-formed part of a UTF-8 sequence becomes U+FFFD.
char* WriteString(char* out, std::string_view text);

/// The room in bytes that any number needs.
constexpr std::size_t kNumberRoom = 32;

/// Writes the shortest number that reads back as `value`; null for NaN and the infinities.
char* WriteNumber(char* out, double value);
char* WriteNumber(char* out, long value);
char* WriteNumber(char* out, unsigned long value);

/// The room in bytes that WriteCompacted needs for a text of `size` bytes.
constexpr std::size_t CompactedRoom(std::size_t size) { return size + kPlainRoom; }

/// Writes the one JSON value that `text` is, without the white space between its parts, strings and
/// numbers letter for letter. Returns null if it is not JSON as RFC 8259 has it: well-formed UTF-8,
/// no byte order mark, no lone surrogate escape, no more than 128 levels of nesting.
char* WriteCompacted(char* out, const std::string& text);

}  // namespace JsonText

#endif  // PLATFORM_JSONTEXT_H_
