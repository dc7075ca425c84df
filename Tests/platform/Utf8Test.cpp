#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "Utf8.h"

namespace {

/// `codePoint` as UTF-8, by the arithmetic of the encoding rather than by tables of bytes.
std::string Encoded(std::uint32_t codePoint) {
  const auto tail = [&](int shift) {
    return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
  };
  if (codePoint < 0x80) return {static_cast<char>(codePoint)};
  if (codePoint < 0x800) return {static_cast<char>(0xC0 | (codePoint >> 6)), tail(0)};
  if (codePoint < 0x10000) return {static_cast<char>(0xE0 | (codePoint >> 12)), tail(6), tail(0)};
  return {static_cast<char>(0xF0 | (codePoint >> 18)), tail(12), tail(6), tail(0)};
}

bool IsSurrogate(std::uint32_t codePoint) { return codePoint >= 0xD800 && codePoint <= 0xDFFF; }

TEST(Utf8Test, TakesEveryCodePointThatIsNoSurrogate) {
  for (std::uint32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    const std::string text = Encoded(codePoint) + "\xBF";  // What follows does not matter.
    const Utf8::Sequence first = Utf8::First(text);
    ASSERT_EQ(first.wellFormed, !IsSurrogate(codePoint)) << std::hex << codePoint;
    ASSERT_EQ(first.length, IsSurrogate(codePoint) ? 1 : text.size() - 1) << std::hex << codePoint;
  }
}

TEST(Utf8Test, RefusesWhatLiesBeyondTheLastCodePoint) {
  for (std::uint32_t codePoint = 0x110000; codePoint <= 0x1FFFFF; ++codePoint) {
    const Utf8::Sequence first = Utf8::First(Encoded(codePoint));
    ASSERT_FALSE(first.wellFormed) << std::hex << codePoint;
    ASSERT_EQ(first.length, 1U) << std::hex << codePoint;
  }
}

TEST(Utf8Test, RefusesEveryByteThatCannotBeginASequence) {
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    if (byte < 0xC2 || byte > 0xF4) {
      const std::string text = {static_cast<char>(byte), '\x80', '\x80', '\x80'};
      const Utf8::Sequence first = Utf8::First(text);
      EXPECT_FALSE(first.wellFormed) << std::hex << byte;
      EXPECT_EQ(first.length, 1U) << std::hex << byte;
    }
  }
}

TEST(Utf8Test, RefusesOverlongFormsAtTheirFirstByte) {
  for (const std::string_view text : {"\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x80\x80\x80",
                                      "\xF0\x82\x82\xAC", "\xF0\x8F\xBF\xBF"}) {
    const Utf8::Sequence first = Utf8::First(text);
    EXPECT_FALSE(first.wellFormed) << testing::PrintToString(text);
    EXPECT_EQ(first.length, 1U) << testing::PrintToString(text);
  }
}

/// What of a sequence is there before it breaks off is one ill-formed part.
void ExpectTruncationsIllFormed(std::string_view sequence, std::string_view next) {
  for (std::size_t length = 1; length < sequence.size(); ++length) {
    const std::string text = std::string(sequence.substr(0, length)).append(next);
    const Utf8::Sequence first = Utf8::First(text);
    EXPECT_FALSE(first.wellFormed) << testing::PrintToString(text);
    EXPECT_EQ(first.length, length) << testing::PrintToString(text);
  }
}

TEST(Utf8Test, CountsATruncatedSequenceAsOnePart) {
  for (const std::string_view sequence :
       {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xE1\x80\x80", "\xED\x9F\xBF", "\xEF\xBF\xBF",
        "\xF0\x90\x80\x80", "\xF3\xBF\xBF\xBF", "\xF4\x8F\xBF\xBF"}) {
    ExpectTruncationsIllFormed(sequence, "");      // The end of the text.
    ExpectTruncationsIllFormed(sequence, "A");     // Below the continuation bytes.
    ExpectTruncationsIllFormed(sequence, "\xC0");  // Just above them.
  }
}

TEST(Utf8Test, ReadsNothingBeyondTheText) {
  const std::string_view buffer = "\xE2\x82\xAC";
  const Utf8::Sequence first = Utf8::First(buffer.substr(0, 2));
  EXPECT_FALSE(first.wellFormed);
  EXPECT_EQ(first.length, 2U);
}

}  // namespace
