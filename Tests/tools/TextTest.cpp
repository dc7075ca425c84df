#include <gtest/gtest.h>

#include <string>

#include "Text.h"

namespace vmetrics {
namespace {

TEST(PrintableTest, OrdinaryTextStays) {
  for (const std::string text : {"", "a b~", "größer", "尝试连接", "\U0001F600", "\\n", "\uFFFD"}) {
    EXPECT_EQ(Printable(text), text);
  }
}

TEST(PrintableTest, ControlCharactersAreEscaped) {
  EXPECT_EQ(Printable("a\nb\rc\td"), "a\\nb\\rc\\td");
  EXPECT_EQ(Printable(std::string("\0\x01\x1B[31m\x1F\x7F", 9)),
            "\\u0000\\u0001\\u001b[31m\\u001f\\u007f");
  EXPECT_EQ(Printable("\u0080\u009B\u009F\u00A0"), "\\u0080\\u009b\\u009f\u00A0");
}

TEST(PrintableTest, ChangesOfDirectionAreEscaped) {
  EXPECT_EQ(Printable("\u061C\u200E\u200F"), "\\u061c\\u200e\\u200f");
  EXPECT_EQ(Printable("\u202A\u202B\u202C\u202D\u202E"), "\\u202a\\u202b\\u202c\\u202d\\u202e");
  EXPECT_EQ(Printable("\u2066\u2067\u2068\u2069"), "\\u2066\\u2067\\u2068\\u2069");
}

TEST(PrintableTest, LineAndParagraphSeparatorsAreEscaped) {
  EXPECT_EQ(Printable("\u2028\u2029"), "\\u2028\\u2029");
}

TEST(PrintableTest, NeighboursOfWhatIsEscapedStay) {
  const std::string text = " ~\u00A0\u061B\u061D\u200D\u2010\u2027\u202F\u2065\u206A";
  EXPECT_EQ(Printable(text), text);
}

TEST(PrintableTest, IllFormedSequencesAreReplaced) {
  EXPECT_EQ(Printable("a\x80z"), "a\uFFFDz");    // A continuation alone.
  EXPECT_EQ(Printable("a\xC3z"), "a\uFFFDz");    // Cut short: before another character,
  EXPECT_EQ(Printable("a\xE5\xB0"), "a\uFFFD");  // and before the end.
  EXPECT_EQ(Printable("a\xF0\x9F\x98z"), "a\uFFFDz");
  EXPECT_EQ(Printable("a\xC0\x80z"), "a\uFFFD\uFFFDz");  // Longer than needed.
  EXPECT_EQ(Printable("a\xE0\x80\x80z"), "a\uFFFDz");
  EXPECT_EQ(Printable("a\xED\xA0\x80z"), "a\uFFFDz");      // A surrogate.
  EXPECT_EQ(Printable("a\xF4\x90\x80\x80z"), "a\uFFFDz");  // Beyond the last character.
  EXPECT_EQ(Printable("a\xFF\xFEz"), "a\uFFFD\uFFFDz");    // In no character at all.
}

TEST(PrintableTest, EverythingIsFitForATerminal) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string text = {static_cast<char>(first), static_cast<char>(second), '\x9B', '\n'};
      const std::string printable = Printable(text);
      EXPECT_EQ(Printable(printable), printable) << first << ' ' << second;
    }
  }
}

TEST(WidthOfTest, IsInColumns) {
  EXPECT_EQ(WidthOf(""), 0U);
  EXPECT_EQ(WidthOf("abc"), 3U);
  EXPECT_EQ(WidthOf("größer…"), 7U);
  EXPECT_EQ(WidthOf("尝试连接vag"), 11U);
}

TEST(FittedTest, ShortTextIsFilledUp) {
  EXPECT_EQ(Fitted("", 0), "");
  EXPECT_EQ(Fitted("", 3), "   ");
  EXPECT_EQ(Fitted("abc", 3), "abc");
  EXPECT_EQ(Fitted("größer", 8), "größer  ");
  EXPECT_EQ(Fitted("尝试", 6), "尝试  ");
}

const std::string kCut(CutMark());

TEST(FittedTest, LongTextIsCut) {
  EXPECT_EQ(Fitted("abcd", 3), "ab" + kCut);
  EXPECT_EQ(Fitted("größer", 4), "grö" + kCut);
  EXPECT_EQ(Fitted("abcd", 1), kCut);
  EXPECT_EQ(Fitted("abcd", 0), "");
}

TEST(FittedTest, CharacterThatDoesNotFitIsLeftOut) {
  EXPECT_EQ(Fitted("尝试连", 5), "尝试" + kCut);
  EXPECT_EQ(Fitted("尝试连", 4), "尝" + kCut + " ");
  EXPECT_EQ(Fitted("尝试连", 2), kCut + " ");
}

TEST(FittedTest, TakesItsColumnsWhateverTheText) {
  for (std::size_t width = 0; width < 12; ++width) {
    EXPECT_EQ(WidthOf(Fitted("a尝b试c", width)), width);
  }
}

TEST(AlignedRightTest, TextIsFilledUpInFront) {
  EXPECT_EQ(AlignedRight("60", 4), "  60");
  EXPECT_EQ(AlignedRight("尝", 4), "  尝");
  EXPECT_EQ(AlignedRight("12345", 4), "12345");
}

TEST(CountedTest, OneIsSingular) {
  EXPECT_EQ(Counted(0, "line"), "0 lines");
  EXPECT_EQ(Counted(1, "line"), "1 line");
  EXPECT_EQ(Counted(2, "line"), "2 lines");
}

}  // namespace
}  // namespace vmetrics
