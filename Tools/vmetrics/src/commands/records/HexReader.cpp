#include "HexReader.h"

#include <fmt/format.h>

namespace vmetrics {

namespace {

constexpr unsigned int kNoDigit = 16;

unsigned int DigitOf(char c) {
  if (c >= '0' && c <= '9') {
    return static_cast<unsigned int>(c - '0');
  }
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? static_cast<unsigned int>(lower - 'a' + 10) : kNoDigit;
}

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string Named(char c) {
  return c > ' ' && c < 0x7F ? fmt::format("'{}'", c)
                             : fmt::format("byte 0x{:02X}", static_cast<unsigned char>(c));
}

}  // namespace

bool HexReader::Add(std::string_view text, std::string& bytes) {
  for (const char c : text) {
    ++column_;
    if (c == '\n') {
      inComment_ = false;
      ++line_;
      column_ = 0;
    } else if (inComment_ || IsBlank(c)) {
      continue;
    } else if (c == '#') {
      inComment_ = true;
    } else if (const unsigned int digit = DigitOf(c); digit != kNoDigit) {
      AddDigit(digit, bytes);
    } else if (c == '*') {
      return Fail("'*' stands for lines that were left out; od -v shows them");
    } else {
      return Fail(Named(c) + " is no hexadecimal digit");
    }
  }
  return true;
}

bool HexReader::Finish() {
  return !isHalf_ || Fail("the text ends in the middle of a byte, which has two digits");
}

bool HexReader::Fail(std::string_view what) {
  fault_ = fmt::format("{}:{}: {}", line_, column_, what);
  return false;
}

void HexReader::AddDigit(unsigned int digit, std::string& bytes) {
  if (isHalf_) {
    bytes += static_cast<char>(first_ << 4U | digit);
  }
  first_ = digit;
  isHalf_ = !isHalf_;
}

}  // namespace vmetrics
