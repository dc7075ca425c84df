#include "JsonText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "PlainText.h"
#include "Utf8.h"

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";  // U+FFFD in UTF-8.

/// The most bytes that each byte of a text can take up in a JSON string.
constexpr std::array<unsigned char, 256> MakeByteRooms() {
  std::array<unsigned char, 256> rooms{};
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const bool plain = PlainText::IsPlain(static_cast<char>(byte));
    rooms[byte] = plain ? 1 : byte < 0x80 ? 6 : kReplacementCharacter.size();
  }
  return rooms;
}
constexpr std::array<unsigned char, 256> kByteRooms = MakeByteRooms();

std::size_t ByteRoom(char character) { return kByteRooms[static_cast<unsigned char>(character)]; }

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

}  // namespace

std::size_t JsonText::LongStringRoom(std::string_view text) {
  std::size_t room = 2 + kPlainRoom;
  for (const char character : text) {
    room += ByteRoom(character);
  }
  return room;
}

char* JsonText::WriteString(char* out, std::string_view text) {
  *out++ = '"';
  for (;;) {
    const std::size_t plain = PlainText::CopyPlain(out, text.data(), text.size());
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
