#include "JsonText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "Utf8.h"

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";  // U+FFFD in UTF-8.

/// Whether a byte goes into a JSON string as it stands, without another look.
constexpr std::array<bool, 256> MakePlainBytes() {
  std::array<bool, 256> plain{};
  for (std::size_t byte = 0x20; byte < 0x7F; ++byte) {
    plain[byte] = byte != '"' && byte != '\\';
  }
  return plain;
}
constexpr std::array<bool, 256> kPlainBytes = MakePlainBytes();

bool IsPlain(char character) { return kPlainBytes[static_cast<unsigned char>(character)]; }

/// The letter of a two-character escape, or 0 where JSON has none for this character.
char ShortEscape(char character) {
  switch (character) {
    case '"':
    case '\\':
      return character;
    case '\b':
      return 'b';
    case '\f':
      return 'f';
    case '\n':
      return 'n';
    case '\r':
      return 'r';
    case '\t':
      return 't';
    default:
      return '\0';
  }
}

void AppendEscaped(std::string& out, char character) {
  static constexpr char kDigits[] = "0123456789abcdef";
  const char letter = ShortEscape(character);
  if (letter != '\0') {
    const char escape[] = {'\\', letter};
    out.append(escape, sizeof escape);
  } else {
    const auto byte = static_cast<unsigned char>(character);
    const char escape[] = {'\\', 'u', '0', '0', kDigits[byte >> 4], kDigits[byte & 0xF]};
    out.append(escape, sizeof escape);
  }
}

/// Appends what stands at the beginning of `text` and is not plain; returns its length in bytes.
std::size_t AppendSpecial(std::string& out, std::string_view text) {
  if (static_cast<unsigned char>(text[0]) < 0x80) {
    AppendEscaped(out, text[0]);
    return 1;
  }
  const Utf8::Sequence sequence = Utf8::First(text);
  out.append(sequence.wellFormed ? text.substr(0, sequence.length) : kReplacementCharacter);
  return sequence.length;
}

template <typename Number>
void AppendDigits(std::string& out, Number value) {
  char digits[32];  // The longest: a double of 17 digits with sign, point and exponent, 24.
  const auto result = std::to_chars(digits, digits + sizeof digits, value);
  out.append(digits, result.ptr);
}

bool IsWhiteSpace(char character) {
  return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

/// The length of the JSON string that `text` begins with, quotes included.
std::size_t StringLength(std::string_view text) {
  std::size_t i = 1;
  while (text[i] != '"') {
    i += text[i] == '\\' ? 2 : 1;
  }
  return i + 1;
}

}  // namespace

void JsonText::AppendString(std::string& out, std::string_view text) {
  out.push_back('"');
  std::size_t i = 0;
  while (i < text.size()) {
    const std::size_t begin = i;
    while (i < text.size() && IsPlain(text[i])) {
      ++i;
    }
    out.append(text.substr(begin, i - begin));
    if (i < text.size()) {
      i += AppendSpecial(out, text.substr(i));
    }
  }
  out.push_back('"');
}

void JsonText::AppendNumber(std::string& out, double value) {
  if (std::isfinite(value)) {
    AppendDigits(out, value);
  } else {
    out.append("null");
  }
}

void JsonText::AppendNumber(std::string& out, long value) { AppendDigits(out, value); }

void JsonText::AppendNumber(std::string& out, unsigned long value) { AppendDigits(out, value); }

std::string JsonText::Compacted(std::string_view validText) {
  std::string compact;
  compact.reserve(validText.size());
  std::size_t i = 0;
  while (i < validText.size()) {
    const std::size_t begin = i;
    while (i < validText.size() && !IsWhiteSpace(validText[i])) {
      i += validText[i] == '"' ? StringLength(validText.substr(i)) : 1;
    }
    compact.append(validText.substr(begin, i - begin));
    while (i < validText.size() && IsWhiteSpace(validText[i])) {
      ++i;
    }
  }
  return compact;
}
