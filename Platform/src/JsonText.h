/// The pieces that JSON texts are made of. None follows a locale.
#ifndef PLATFORM_JSONTEXT_H_
#define PLATFORM_JSONTEXT_H_

#include <cstddef>
#include <string_view>

namespace JsonText {

// The writers put a text at `out` and return its end. They allocate nothing: the caller sees to it
// that there is room.

/// The room in bytes that WriteString needs for `text`, every byte looked at.
std::size_t LongStringRoom(std::string_view text);

/// The room in bytes that WriteString needs for `text`: never too little. For a short text it is
/// the worst case, which is not worth a closer look.
inline std::size_t StringRoom(std::string_view text) {
  constexpr std::size_t kShort = 32;
  constexpr std::size_t kLongestEscape = 6;
  return text.size() <= kShort ? kLongestEscape * text.size() + 2 : LongStringRoom(text);
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

/// Whether all of `text` is one JSON value as RFC 8259 has it: well-formed UTF-8, no byte order
/// mark, no lone surrogate escape, no more than 128 levels of nesting. May throw std::bad_alloc for
/// a number with an exponent of ten digits and more.
bool IsValid(std::string_view text);

/// Writes valid JSON without the white space between its values, strings and numbers letter for
/// letter. It needs no more room than `validText` has.
char* WriteCompacted(char* out, std::string_view validText);

}  // namespace JsonText

#endif  // PLATFORM_JSONTEXT_H_
