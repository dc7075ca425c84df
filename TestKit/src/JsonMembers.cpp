#include "JsonMembers.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

namespace TestKit {
namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

void SkipWhiteSpace(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
}

bool Take(std::string_view& text, char character) {
  SkipWhiteSpace(text);
  if (text.empty() || text[0] != character) {
    return false;
  }
  text.remove_prefix(1);
  return true;
}

/// The length of the string that `text` begins with, quotes included; all of it if it has no end.
std::size_t StringLength(std::string_view text) {
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at] == '"') {
      return at + 1;
    }
    at += text[at] == '\\' ? 1 : 0;
  }
  return text.size();
}

/// The length of the value that `text` begins with: up to the comma or brace that is not its own.
std::size_t ValueLength(std::string_view text) {
  int depth = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char character = text[at];
    if (depth == 0 && (character == ',' || character == '}' || character == ']')) {
      return at;
    }
    depth += character == '{' || character == '[' ? 1 : 0;
    depth -= character == '}' || character == ']' ? 1 : 0;
    at += character == '"' ? StringLength(text.substr(at)) : 1;
  }
  return text.size();
}

/// Takes the first `length` bytes off the text.
std::string_view TakeFront(std::string_view& text, std::size_t length) {
  const std::string_view front = text.substr(0, length);
  text.remove_prefix(front.size());
  return front;
}

std::string_view WithoutTrailingSpace(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1);
}

void AppendUtf8(std::string& out, std::uint32_t character) {
  if (character < 0x80) {
    out += static_cast<char>(character);
    return;
  }
  const int continuations = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
  const std::uint32_t mark = 0xFF00U >> (continuations + 1) & 0xFFU;  // 110..., 1110..., 11110...
  out += static_cast<char>(mark | character >> (6 * continuations));
  for (int i = continuations - 1; i >= 0; --i) {
    out += static_cast<char>(0x80U | (character >> (6 * i) & 0x3FU));
  }
}

/// Takes the four digits that follow \u.
std::uint32_t TakeCodeUnit(std::string_view& text) {
  const std::string_view digits = TakeFront(text, 4);
  std::uint32_t unit = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
  return unit;
}

/// Takes what follows \u, two code units for a character outside the basic plane.
std::uint32_t TakeUnicode(std::string_view& text) {
  const std::uint32_t unit = TakeCodeUnit(text);
  if (unit < 0xD800 || unit > 0xDBFF || text.substr(0, 2) != "\\u") {
    return unit;
  }
  text.remove_prefix(2);
  return 0x10000 + ((unit - 0xD800) << 10) + (TakeCodeUnit(text) & 0x3FFU);
}

void AppendEscaped(std::string& out, std::string_view& text) {
  constexpr std::string_view kLetters = "bfnrt";
  constexpr std::string_view kMeanings = "\b\f\n\r\t";
  const std::string_view letter = TakeFront(text, 1);
  if (letter == "u") {
    AppendUtf8(out, TakeUnicode(text));
  } else if (const std::size_t at = kLetters.find(letter);
             !letter.empty() && at != std::string_view::npos) {
    out += kMeanings[at];
  } else {
    out += letter;
  }
}

}  // namespace

Members MembersOf(std::string_view text) {
  Members members;
  if (!Take(text, '{')) {
    return members;
  }
  do {
    SkipWhiteSpace(text);
    if (text.empty() || text[0] != '"') {
      break;
    }
    std::string name = TextOf(TakeFront(text, StringLength(text)));
    if (!Take(text, ':')) {
      break;
    }
    SkipWhiteSpace(text);
    members[std::move(name)] = WithoutTrailingSpace(TakeFront(text, ValueLength(text)));
  } while (Take(text, ','));
  return members;
}

std::string TextOf(std::string_view json) {
  if (json.size() < 2 || json.front() != '"' || json.back() != '"') {
    return {};
  }
  std::string_view rest = json.substr(1, json.size() - 2);
  std::string text;
  while (!rest.empty()) {
    const std::string_view character = TakeFront(rest, 1);
    if (character == "\\") {
      AppendEscaped(text, rest);
    } else {
      text += character;
    }
  }
  return text;
}

}  // namespace TestKit
