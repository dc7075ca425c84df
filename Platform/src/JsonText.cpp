#include "JsonText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "Utf8.h"

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";  // U+FFFD in UTF-8.

/// The most bytes that each byte of a text can take up in a JSON string. What takes up one goes in
/// as it stands, without another look.
constexpr std::array<unsigned char, 256> MakeByteRooms() {
  std::array<unsigned char, 256> rooms{};
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const bool escaped = byte < 0x20 || byte == '"' || byte == '\\' || byte == 0x7F;
    rooms[byte] = escaped ? 6 : byte < 0x80 ? 1 : kReplacementCharacter.size();
  }
  return rooms;
}
constexpr std::array<unsigned char, 256> kByteRooms = MakeByteRooms();

std::size_t ByteRoom(char character) { return kByteRooms[static_cast<unsigned char>(character)]; }

/// The same byte eight times.
constexpr std::uint64_t Eight(std::uint64_t byte) { return byte * 0x0101010101010101; }

/// Whether one of the eight bytes is zero. May say so of a byte 0x80 or more, too.
constexpr bool MayHaveZero(std::uint64_t bytes) { return ((bytes - Eight(1)) & Eight(0x80)) != 0; }

/// Whether eight bytes go into a JSON string as they stand.
bool ArePlain(std::uint64_t bytes) {
  // In this order: 0x80 and above, below 0x20, and the three characters between that are escaped.
  const bool ascii = (bytes & Eight(0x80)) == 0;
  return ascii && ((bytes - Eight(0x20)) & Eight(0x80)) == 0 && !MayHaveZero(bytes ^ Eight('"')) &&
         !MayHaveZero(bytes ^ Eight('\\')) && !MayHaveZero(bytes ^ Eight(0x7F));
}

/// Copies eight bytes if they go into a JSON string as they stand.
bool CopyEight(char* out, const char* text) {
  std::uint64_t bytes;
  std::memcpy(&bytes, text, sizeof bytes);
  if (!ArePlain(bytes)) {
    return false;
  }
  std::memcpy(out, &bytes, sizeof bytes);
  return true;
}

/// Writes the beginning of `text` as far as it goes into a JSON string as it stands; returns how
/// many bytes that was.
std::size_t WritePlain(char* out, std::string_view text) {
  const std::size_t size = text.size();
  std::size_t i = 0;
  while (i + 8 <= size && CopyEight(out + i, text.data() + i)) {
    i += 8;
  }
  // The rest of a longer text in one go, together with a few bytes before it.
  if (size >= 8 && i + 8 > size && CopyEight(out + size - 8, text.data() + size - 8)) {
    return size;
  }
  for (; i < size && ByteRoom(text[i]) == 1; ++i) {
    out[i] = text[i];
  }
  return i;
}

char* Write(char* out, std::string_view text) {
  std::memcpy(out, text.data(), text.size());
  return out + text.size();
}

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

char* WriteEscape(char* out, char character) {
  static constexpr char kDigits[] = "0123456789abcdef";
  *out++ = '\\';
  const char letter = ShortEscape(character);
  if (letter != '\0') {
    *out++ = letter;
    return out;
  }
  const auto byte = static_cast<unsigned char>(character);
  const char code[] = {'u', '0', '0', kDigits[byte >> 4], kDigits[byte & 0xF]};
  return Write(out, {code, sizeof code});
}

template <typename Number>
char* WriteDigits(char* out, Number value) {
  return std::to_chars(out, out + JsonText::kNumberRoom, value).ptr;
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

std::size_t JsonText::LongStringRoom(std::string_view text) {
  std::size_t room = 2;
  for (const char character : text) {
    room += ByteRoom(character);
  }
  return room;
}

char* JsonText::WriteString(char* out, std::string_view text) {
  *out++ = '"';
  for (;;) {
    const std::size_t plain = WritePlain(out, text);
    out += plain;
    text.remove_prefix(plain);
    if (text.empty()) {
      break;
    }
    if (static_cast<unsigned char>(text[0]) < 0x80) {
      out = WriteEscape(out, text[0]);
      text.remove_prefix(1);
    } else {
      const Utf8::Sequence sequence = Utf8::First(text);
      out =
          Write(out, sequence.wellFormed ? text.substr(0, sequence.length) : kReplacementCharacter);
      text.remove_prefix(sequence.length);
    }
  }
  *out++ = '"';
  return out;
}

char* JsonText::WriteNumber(char* out, double value) {
  return std::isfinite(value) ? WriteDigits(out, value) : Write(out, "null");
}

char* JsonText::WriteNumber(char* out, long value) { return WriteDigits(out, value); }

char* JsonText::WriteNumber(char* out, unsigned long value) { return WriteDigits(out, value); }

char* JsonText::WriteCompacted(char* out, std::string_view validText) {
  std::size_t i = 0;
  while (i < validText.size()) {
    const std::size_t begin = i;
    while (i < validText.size() && !IsWhiteSpace(validText[i])) {
      i += validText[i] == '"' ? StringLength(validText.substr(i)) : 1;
    }
    out = Write(out, validText.substr(begin, i - begin));
    while (i < validText.size() && IsWhiteSpace(validText[i])) {
      ++i;
    }
  }
  return out;
}
