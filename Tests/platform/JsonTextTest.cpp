#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "JsonText.h"
#include "WrittenJson.h"

namespace {

#define REPLACED "\xEF\xBF\xBD"  // U+FFFD, to be joined with literals.

std::string JsonString(std::string_view text) {
  return Written(JsonText::StringRoom(text),
                 [&](char* out) { return JsonText::WriteString(out, text); })
      .value();
}

template <typename Number>
std::string JsonNumber(Number value) {
  return Written(JsonText::kNumberRoom,
                 [&](char* out) { return JsonText::WriteNumber(out, value); })
      .value();
}

/// How the seven-bit character `byte` must stand in a JSON string.
std::string Escaped(int byte) {
  switch (byte) {
    case '\b':
      return "\\b";
    case '\t':
      return "\\t";
    case '\n':
      return "\\n";
    case '\f':
      return "\\f";
    case '\r':
      return "\\r";
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    default:
      break;
  }
  char text[8] = {static_cast<char>(byte)};
  if (byte < 0x20 || byte == 0x7F) {
    std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(byte));
  }
  return text;
}

TEST(JsonTextTest, EscapesQuoteBackslashAndControlCharactersOnly) {
  for (int byte = 0; byte <= 0x7F; ++byte) {
    const std::string text = {'<', static_cast<char>(byte), '>'};
    EXPECT_EQ(JsonString(text), "\"<" + Escaped(byte) + ">\"") << byte;
  }
}

TEST(JsonTextTest, FindsWhatToEscapeAtAnyPlaceInATextOfAnyLength) {
  for (std::size_t length = 1; length <= 40; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      const std::string before(place, '~');
      const std::string after(length - place - 1, ' ');
      for (const char special : {'\0', '\x1F', '"', '\\', '\x7F'}) {
        ASSERT_EQ(JsonString(before + special + after),
                  "\"" + before + Escaped(special) + after + "\"");
      }
      ASSERT_EQ(JsonString(before + '\xFF' + after), "\"" + before + REPLACED + after + "\"");
      ASSERT_EQ(JsonString(before + "\xC3\xA9" + after), "\"" + before + "\xC3\xA9" + after + "\"");
    }
  }
}

TEST(JsonTextTest, TheRoomForAStringIsEnoughWhateverIsToBeEscaped) {
  for (const std::size_t length : {0U, 1U, 7U, 8U, 31U, 32U, 33U, 1000U}) {
    for (const char character : {'a', '\x01', '"', '\x7F', '\xFF'}) {
      const std::string text(length, character);
      EXPECT_GE(JsonText::StringRoom(text), JsonString(text).size());
      EXPECT_GE(JsonText::LongStringRoom(text), JsonString(text).size());
    }
  }
}

TEST(JsonTextTest, ALongPlainStringTakesNoMoreRoomThanItNeeds) {
  EXPECT_EQ(JsonText::StringRoom(std::string(41, 'a')), 43U + JsonText::kPlainRoom);
  EXPECT_EQ(JsonText::StringRoom(std::string(60'000, 'a')), 60'002U + JsonText::kPlainRoom);
}

TEST(JsonTextTest, PassesWellFormedSequencesThrough) {
  for (const std::string text :
       {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xE0\xBF\xBF", "\xE1\x80\x80", "\xEC\xBF\xBF",
        "\xED\x80\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBB\xBF", "\xEF\xBF\xBF",
        "\xE2\x80\xA8", "\xF0\x90\x80\x80", "\xF0\xBF\xBF\xBF", "\xF1\x80\x80\x80",
        "\xF3\xBF\xBF\xBF", "\xF4\x80\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(JsonString("a" + text + "z"), "\"a" + text + "z\"");
  }
}

TEST(JsonTextTest, ReplacesEachMaximalIllFormedPart) {
  struct Case {
    std::string_view text;
    std::string_view replaced;
  };
  const Case cases[] = {
      // Continuation bytes alone, and bytes that never occur.
      {"\x80", REPLACED},
      {"\xBF", REPLACED},
      {"\x80\xBF", REPLACED REPLACED},
      {"\xC3\xA9\xA9", "\xC3\xA9" REPLACED},
      {"\xF5\x80\x80\x80", REPLACED REPLACED REPLACED REPLACED},
      {"\xF8\xFE\xFF", REPLACED REPLACED REPLACED},
      // Overlong forms of U+0000, U+007F, U+07FF and U+FFFF.
      {"\xC0\x80", REPLACED REPLACED},
      {"\xC1\xBF", REPLACED REPLACED},
      {"\xE0\x80\x80", REPLACED REPLACED REPLACED},
      {"\xE0\x9F\xBF", REPLACED REPLACED REPLACED},
      {"\xF0\x80\x80\x80", REPLACED REPLACED REPLACED REPLACED},
      {"\xF0\x8F\xBF\xBF", REPLACED REPLACED REPLACED REPLACED},
      // Surrogates, the first and the last, and a pair of them.
      {"\xED\xA0\x80", REPLACED REPLACED REPLACED},
      {"\xED\xBF\xBF", REPLACED REPLACED REPLACED},
      {"\xED\xA0\xBD\xED\xB8\x80", REPLACED REPLACED REPLACED REPLACED REPLACED REPLACED},
      // Beyond U+10FFFF.
      {"\xF4\x90\x80\x80", REPLACED REPLACED REPLACED REPLACED},
      // Broken off at each place, by the end of the text, by a letter, by another sequence.
      {"\xC2", REPLACED},
      {"\xE1", REPLACED},
      {"\xE1\x80", REPLACED},
      {"\xF1", REPLACED},
      {"\xF1\x80", REPLACED},
      {"\xF1\x80\x80", REPLACED},
      {"\xC2.", REPLACED "."},
      {"\xE1.", REPLACED "."},
      {"\xE1\x80.", REPLACED "."},
      {"\xF1.", REPLACED "."},
      {"\xF1\x80.", REPLACED "."},
      {"\xF1\x80\x80.", REPLACED "."},
      {"\xE1\x80\xE1\x80\x80", REPLACED "\xE1\x80\x80"},
      {"\xF0\x9F\x98\xC3\xA9", REPLACED "\xC3\xA9"},
      {"\xE1\x80\n", REPLACED "\\n"},
      // The example of the Unicode standard.
      {"a\xF1\x80\x80\xE1\x80\xC2"
       "b\x80"
       "c\x80\xBF"
       "d",
       "a" REPLACED REPLACED REPLACED "b" REPLACED "c" REPLACED REPLACED "d"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(JsonString(one.text), "\"" + std::string(one.replaced) + "\"")
        << testing::PrintToString(one.text);
  }
}

TEST(JsonTextTest, WritesWholeNumbersToTheirLimits) {
  EXPECT_EQ(JsonNumber(0L), "0");
  EXPECT_EQ(JsonNumber(-1L), "-1");
  EXPECT_EQ(JsonNumber(LONG_MIN), "-9223372036854775808");
  EXPECT_EQ(JsonNumber(LONG_MAX), "9223372036854775807");
  EXPECT_EQ(JsonNumber(0UL), "0");
  EXPECT_EQ(JsonNumber(ULONG_MAX), "18446744073709551615");
}

TEST(JsonTextTest, WritesTheShortestDoubleThatReadsBack) {
  struct Case {
    double value;
    const char* text;
  };
  const Case cases[] = {{0.0, "0"},
                        {-0.0, "-0"},
                        {1.0, "1"},
                        {-2.5, "-2.5"},
                        {0.1, "0.1"},
                        {0.1 + 0.2, "0.30000000000000004"},
                        {1234567.5, "1234567.5"},
                        {1e22, "1e+22"},
                        {1e-7, "1e-07"},
                        {9007199254740993.0, "9007199254740992"},
                        {DBL_MIN, "2.2250738585072014e-308"},
                        {5e-324, "5e-324"},
                        {DBL_MAX, "1.7976931348623157e+308"},
                        {-DBL_MAX, "-1.7976931348623157e+308"},
                        {static_cast<double>(0.1F), "0.10000000149011612"}};
  for (const Case& one : cases) {
    const std::string text = JsonNumber(one.value);
    EXPECT_EQ(text, one.text);
    EXPECT_EQ(Compacted(text), text);
    EXPECT_EQ(std::strtod(text.c_str(), nullptr), one.value) << text;
  }
}

TEST(JsonTextTest, WritesNullForWhatIsNoNumber) {
  EXPECT_EQ(JsonNumber(std::nan("")), "null");
  EXPECT_EQ(JsonNumber(-std::nan("")), "null");
  EXPECT_EQ(JsonNumber(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(JsonNumber(-std::numeric_limits<double>::infinity()), "null");
}

}  // namespace
