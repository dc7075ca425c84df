#include "TextModel.h"

#include <cstdint>
#include <cstdio>

namespace Oracle {
namespace {

struct Range {
  std::uint32_t first;
  std::uint32_t last;
};

/// The code points that sequences of that many bytes are for.
Range CodePoints(std::size_t sequenceLength) {
  switch (sequenceLength) {
    case 1:
      return {0, 0x7F};
    case 2:
      return {0x80, 0x7FF};
    case 3:
      return {0x800, 0xFFFF};
    default:
      return {0x10000, 0x10FFFF};
  }
}

/// How long the sequence is that a byte begins: as many bytes as it has leading ones; 0 for none.
std::size_t SequenceLength(std::uint8_t lead) {
  std::size_t ones = 0;
  while (ones < 8 && (lead << ones & 0x80) != 0) {
    ++ones;
  }
  if (ones == 0) {
    return 1;
  }
  return ones >= 2 && ones <= 4 ? ones : 0;
}

/// Whether there is a code point whose encoding begins with `bytes`.
bool CanBegin(std::string_view bytes) {
  const auto lead = static_cast<std::uint8_t>(bytes[0]);
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || bytes.size() > length) {
    return false;
  }
  std::uint32_t lowest = length == 1 ? lead : lead & (0x7FU >> length);
  for (const char byte : bytes.substr(1)) {
    const auto tail = static_cast<std::uint8_t>(byte);
    if (tail / 0x40 != 2) {
      return false;
    }
    lowest = lowest * 0x40 + tail % 0x40;
  }
  std::uint32_t highest = lowest;
  for (std::size_t missing = bytes.size(); missing < length; ++missing) {
    lowest = lowest * 0x40;
    highest = highest * 0x40 + 0x3F;
  }
  const Range range = CodePoints(length);
  lowest = lowest < range.first ? range.first : lowest;
  highest = highest > range.last ? range.last : highest;
  const bool surrogates = lowest >= 0xD800 && highest <= 0xDFFF;
  return lowest <= highest && !surrogates;
}

}  // namespace

Part FirstPart(std::string_view text) {
  const std::size_t whole = SequenceLength(static_cast<std::uint8_t>(text[0]));
  std::size_t length = 0;
  while (length < whole && length < text.size() && CanBegin(text.substr(0, length + 1))) {
    ++length;
  }
  const bool wellFormed = length > 0 && length == whole;
  return {length == 0 ? 1 : length, wellFormed};
}

std::string Repaired(std::string_view text) {
  std::string repaired;
  while (!text.empty()) {
    const Part part = FirstPart(text);
    repaired += part.wellFormed ? text.substr(0, part.length) : "\uFFFD";
    text.remove_prefix(part.length);
  }
  return repaired;
}

std::string Quoted(std::string_view text) {
  constexpr std::string_view kNamed = "\"\\\b\f\n\r\t";
  constexpr std::string_view kNames = "\"\\bfnrt";
  std::string quoted = "\"";
  for (const char character : Repaired(text)) {
    const std::size_t named = kNamed.find(character);
    const auto byte = static_cast<unsigned char>(character);
    if (named != std::string_view::npos) {
      quoted += {'\\', kNames[named]};
    } else if (byte < 0x20 || byte == 0x7F) {
      char code[8];
      std::snprintf(code, sizeof code, "\\u%04x", unsigned{byte});
      quoted += code;
    } else {
      quoted += character;
    }
  }
  return quoted + '"';
}

}  // namespace Oracle
