/// The pieces that JSON texts are made of. All may throw std::bad_alloc; none follows a locale.
#ifndef PLATFORM_JSONTEXT_H_
#define PLATFORM_JSONTEXT_H_

#include <string>
#include <string_view>

namespace JsonText {

/// Appends `text` as a JSON string, quotes included. `"`, `\` and the control characters 0x00 to
/// 0x1F and 0x7F are escaped; each maximal ill-formed part of a UTF-8 sequence becomes U+FFFD.
void AppendString(std::string& out, std::string_view text);

/// Appends the shortest number that reads back as `value`; null for NaN and the infinities.
void AppendNumber(std::string& out, double value);
void AppendNumber(std::string& out, long value);
void AppendNumber(std::string& out, unsigned long value);

/// Whether all of `text` is one JSON value as RFC 8259 has it: well-formed UTF-8, no byte order
/// mark, no lone surrogate escape, no more than 128 levels of nesting.
bool IsValid(std::string_view text);

/// Valid JSON without the white space between its values; strings and numbers letter for letter.
std::string Compacted(std::string_view validText);

}  // namespace JsonText

#endif  // PLATFORM_JSONTEXT_H_
