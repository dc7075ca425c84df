/// The characters that stand in a JSON string as they are, eight of them looked at together.
#ifndef PLATFORM_PLAINTEXT_H_
#define PLATFORM_PLAINTEXT_H_

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace PlainText {

/// Whether a character is ASCII and never escaped: none of `"`, `\` and the control characters.
constexpr bool IsPlain(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte >= 0x20 && byte < 0x7F && byte != '"' && byte != '\\';
}

/// The same byte eight times.
constexpr std::uint64_t Eight(std::uint64_t byte) { return byte * 0x0101010101010101; }

/// Eight characters from memory, and how many of the first of them are plain. The first one stands
/// in the lowest byte.
inline std::size_t CountPlain(std::uint64_t characters) {
  // The highest bit of a byte is set by a borrow where the byte is less than what is taken from it,
  // and by a carry where it is 0x7F. The lowest byte so marked is always a right one; those above
  // it can be marked by its borrow.
  const std::uint64_t marked = (characters - Eight(0x20)) | (characters + Eight(1)) |
                               ((characters ^ Eight('"')) - Eight(1)) |
                               ((characters ^ Eight('\\')) - Eight(1)) | characters;
  const std::uint64_t special = marked & Eight(0x80);
  return special == 0 ? 8 : static_cast<std::size_t>(__builtin_ctzll(special)) / 8;
}

template <typename Number>
Number Load(const char* text) {
  Number characters;
  std::memcpy(&characters, text, sizeof characters);
  return characters;
}

/// The characters of a text of less than eight, and NUL behind them.
inline std::uint64_t LoadShort(const char* text, std::size_t size) {
  if (size >= 4) {
    const std::uint64_t last = Load<std::uint32_t>(text + size - 4);
    return Load<std::uint32_t>(text) | last << (8 * (size - 4));
  }
  std::uint64_t characters = 0;
  for (std::size_t i = size; i > 0; --i) {
    characters = characters << 8 | static_cast<unsigned char>(text[i - 1]);
  }
  return characters;
}

/// The last `count` characters of a text, less than eight, and NUL behind them.
inline std::uint64_t LoadLast(const char* text, std::size_t size, std::size_t count) {
  return size < 8 || count == 0 ? LoadShort(text, count)
                                : Load<std::uint64_t>(text + size - 8) >> (8 * (8 - count));
}

/// Copies the plain characters that `text` begins with, returns how many there were. Needs room for
/// eight bytes more.
inline std::size_t CopyPlain(char* out, const char* text, std::size_t size) {
  for (std::size_t copied = 0;;) {
    const std::size_t left = size - copied;
    const std::uint64_t characters =
        left >= 8 ? Load<std::uint64_t>(text + copied) : LoadLast(text, size, left);
    std::memcpy(out + copied, &characters, sizeof characters);
    const std::size_t plain = CountPlain(characters);
    copied += plain;
    if (plain < 8) {
      return copied;
    }
  }
}

}  // namespace PlainText

#endif  // PLATFORM_PLAINTEXT_H_
