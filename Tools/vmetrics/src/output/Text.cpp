#include "Text.h"

#include <fmt/format.h>

#include <cstdint>

#include "Terminal.h"

namespace vmetrics {

namespace {

/// One character of a text; `size` bytes, `code` U+FFFD where they are ill-formed.
struct Character {
  std::uint32_t code;
  std::size_t size;
};

constexpr std::uint32_t kReplacement = 0xFFFD;

bool Continues(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

Character FirstOf(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) {
    return {first, 1};
  }
  const std::size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  std::uint32_t code = first & (0xFFU >> (size + 1));
  for (std::size_t at = 1; at < size; ++at) {
    if (!Continues(text, at)) {
      return {kReplacement, at};
    }
    code = (code << 6U) | (static_cast<unsigned char>(text[at]) & 0x3FU);
  }
  constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isWellFormed = first >= 0xC2 && first <= 0xF4 && code >= kSmallest[size] &&
                            code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  return {isWellFormed ? code : kReplacement, first >= 0xC2 && first <= 0xF4 ? size : 1};
}

/// Whether a terminal obeys the character.
bool IsControl(std::uint32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x61C || code == 0x200E ||
         code == 0x200F || code == 0x2028 || code == 0x2029 || (code >= 0x202A && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069);
}

std::string EscapeOf(std::uint32_t code) {
  switch (code) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return fmt::format("\\u{:04x}", code);
  }
}

}  // namespace

std::string Printable(std::string_view text) {
  std::string printable;
  printable.reserve(text.size());
  while (!text.empty()) {
    const Character character = FirstOf(text);
    if (IsControl(character.code)) {
      printable += EscapeOf(character.code);
    } else if (character.code == kReplacement) {
      printable += "\uFFFD";
    } else {
      printable += text.substr(0, character.size);
    }
    text.remove_prefix(character.size);
  }
  return printable;
}

std::string PrintableName(std::string_view name) { return name.empty() ? "\"\"" : Printable(name); }

std::size_t WidthOf(std::string_view text) {
  // The formatter fills up by columns: what it does not add to a wide field is what the text takes.
  constexpr std::size_t kPerCharacter = 2;
  const std::size_t room = kPerCharacter * text.size();
  const std::size_t filled = fmt::formatted_size("{:<{}}", text, room);
  return room - (filled - text.size());
}

std::string_view CutMark() {
  static const bool kHasUtf8 = HasUtf8Locale();
  return kHasUtf8 ? "…" : "~";
}

std::string Fitted(std::string_view text, std::size_t width) {
  if (WidthOf(text) <= width) {
    return fmt::format("{:<{}}", text, width);
  }
  std::size_t columns = 1;  // That of the sign that something is missing.
  std::size_t end = 0;
  while (end < text.size()) {
    const std::size_t size = FirstOf(text.substr(end)).size;
    columns += WidthOf(text.substr(end, size));
    if (columns > width) {
      break;
    }
    end += size;
  }
  return width == 0
             ? std::string()
             : fmt::format("{:<{}}", fmt::format("{}{}", text.substr(0, end), CutMark()), width);
}

std::string AlignedRight(std::string_view text, std::size_t width) {
  return fmt::format("{:>{}}", text, width);
}

std::string Counted(std::uint64_t count, std::string_view thing) {
  return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

}  // namespace vmetrics
