#include <gtest/gtest.h>

#include <cstdarg>
#include <ctime>
#include <string>

#include "AllocationFailure.h"
#include "DiagnosticLine.h"

namespace {

constexpr unsigned long kDay = 86'400'000;

std::string Text(const DiagnosticLine& line) { return std::string(line.Text()); }

std::string Head(unsigned long tick, int level, const char* function) {
  DiagnosticLine line;
  line.AppendHead(tick, level, function);
  return Text(line);
}

/// The time that a line begins with.
std::string Time(unsigned long tick) { return Head(tick, 1, "F").substr(0, 24); }

std::string Tag(const char* text) {
  DiagnosticLine line;
  line.AppendTag(text);
  return Text(line);
}

std::string Source(const char* file, int number) {
  DiagnosticLine line;
  line.AppendSource(file, number);
  return Text(line);
}

void AppendMessage(DiagnosticLine& line, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
void AppendMessage(DiagnosticLine& line, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  line.AppendMessage(format, arguments);
  va_end(arguments);
}

std::string Message(const char* text) {
  DiagnosticLine line;
  AppendMessage(line, "%s", text);
  return Text(line);
}

TEST(DiagnosticLineTest, PutsTimeLevelFunctionTagsMessageAndSourceInARow) {
  DiagnosticLine line;
  line.AppendHead(1772357400250, 1, "InsertRecord");
  line.AppendTag("one");
  line.AppendTag("two");
  AppendMessage(line, "status %d of %s", -9996, "step");
  line.AppendSource("Framework/VMetrics/src/DotRecord", 31);
  EXPECT_EQ(line.Text(),
            "2026-03-01T09:30:00.250Z ERROR InsertRecord: (one) (two) status -9996 of step "
            "[Framework/VMetrics/src/DotRecord:31]");
}

TEST(DiagnosticLineTest, BeginsEmpty) { EXPECT_EQ(DiagnosticLine().Text(), ""); }

TEST(DiagnosticLineTest, NamesTheLevels) {
  EXPECT_EQ(Head(0, 1, "F"), "1970-01-01T00:00:00.000Z ERROR F:");
  EXPECT_EQ(Head(0, 2, "F"), "1970-01-01T00:00:00.000Z WARNING F:");
  EXPECT_EQ(Head(0, 3, "F"), "1970-01-01T00:00:00.000Z INFO F:");
  EXPECT_EQ(Head(0, 4, "F"), "1970-01-01T00:00:00.000Z DEBUG F:");
  EXPECT_EQ(Head(0, 0, "F"), "1970-01-01T00:00:00.000Z DEBUG F:");
}

TEST(DiagnosticLineTest, TellsTheTimeToTheMillisecond) {
  EXPECT_EQ(Time(0), "1970-01-01T00:00:00.000Z");
  EXPECT_EQ(Time(1), "1970-01-01T00:00:00.001Z");
  EXPECT_EQ(Time(kDay - 1), "1970-01-01T23:59:59.999Z");
  EXPECT_EQ(Time(kDay), "1970-01-02T00:00:00.000Z");
  EXPECT_EQ(Time(1700000000000), "2023-11-14T22:13:20.000Z");
}

TEST(DiagnosticLineTest, KnowsLeapDaysAndYearEnds) {
  EXPECT_EQ(Time(951'782'400'000), "2000-02-29T00:00:00.000Z");
  EXPECT_EQ(Time(1'709'164'800'000), "2024-02-29T00:00:00.000Z");
  EXPECT_EQ(Time(1'709'251'200'000), "2024-03-01T00:00:00.000Z");
  EXPECT_EQ(Time(1'772'323'199'999), "2026-02-28T23:59:59.999Z");
  EXPECT_EQ(Time(1'772'323'200'000), "2026-03-01T00:00:00.000Z");
  EXPECT_EQ(Time(1'798'761'599'999), "2026-12-31T23:59:59.999Z");
  EXPECT_EQ(Time(1'798'761'600'000), "2027-01-01T00:00:00.000Z");
  EXPECT_EQ(Time(1'735'603'200'000), "2024-12-31T00:00:00.000Z");
  EXPECT_EQ(Time(4'107'456'000'000), "2100-02-28T00:00:00.000Z");
  EXPECT_EQ(Time(4'107'542'400'000), "2100-03-01T00:00:00.000Z");  // No leap year.
}

TEST(DiagnosticLineTest, AgreesWithTheCalendarOfTheCLibrary) {
  for (std::time_t day = 0; day < 430 * 366; ++day) {  // All of a cycle of 400 years.
    const std::time_t seconds = day * 86'400;
    std::tm date;
    gmtime_r(&seconds, &date);
    char expected[32];
    std::strftime(expected, sizeof expected, "%Y-%m-%dT%H:%M:%S.000Z", &date);
    ASSERT_EQ(Time(static_cast<unsigned long>(day) * kDay), expected);
  }
}

TEST(DiagnosticLineTest, LeavesBlankTagsOut) {
  EXPECT_EQ(Tag(nullptr), "");
  EXPECT_EQ(Tag(""), "");
  EXPECT_EQ(Tag(" "), "");
  EXPECT_EQ(Tag("   "), "");
  EXPECT_EQ(Tag(" a"), " ( a)");
  EXPECT_EQ(Tag("\t"), " (\\x09)");
}

TEST(DiagnosticLineTest, PutsAQuestionMarkForWhatIsNotKnown) {
  EXPECT_EQ(Head(0, 1, nullptr), "1970-01-01T00:00:00.000Z ERROR ?:");
  EXPECT_EQ(Source(nullptr, 7), " [?:7]");
}

TEST(DiagnosticLineTest, EscapesControlCharactersOnly) {
  for (int byte = 1; byte <= 0xFF; ++byte) {
    const char text[] = {static_cast<char>(byte), '\0'};
    char expected[8] = {' ', static_cast<char>(byte)};
    if (byte < 0x20 || byte == 0x7F) {
      std::snprintf(expected, sizeof expected, " \\x%02x", static_cast<unsigned>(byte));
    }
    EXPECT_EQ(Message(text), expected);
  }
}

TEST(DiagnosticLineTest, EscapesControlCharactersInEveryPart) {
  EXPECT_EQ(Head(0, 1, "F\n"), "1970-01-01T00:00:00.000Z ERROR F\\x0a:");
  EXPECT_EQ(Tag("a\r\nb"), " (a\\x0d\\x0ab)");
  EXPECT_EQ(Source("f\x7F", -1), " [f\\x7f:-1]");
}

TEST(DiagnosticLineTest, TakesAPercentSignInAnArgumentAsItIs) {
  EXPECT_EQ(Message("100 %s %n"), " 100 %s %n");
}

TEST(DiagnosticLineTest, WritesTheFormatWhereAnArgumentCannotBeConverted) {
  DiagnosticLine line;
  const wchar_t noCharacter[] = {static_cast<wchar_t>(0x7FFFFFFF), 0};
  AppendMessage(line, "value %ls", noCharacter);
  EXPECT_EQ(line.Text(), " value %ls");
}

TEST(DiagnosticLineTest, KeepsAMessageThatJustFits) {
  const std::string longest(3796, 'x');
  EXPECT_EQ(Message(longest.c_str()), " " + longest);
}

TEST(DiagnosticLineTest, ShowsWhereAMessageIsCut) {
  const std::string cut = " " + std::string(3796, 'x') + "...";
  EXPECT_EQ(Message(std::string(3797, 'x').c_str()), cut);
  EXPECT_EQ(Message(std::string(100'000, 'x').c_str()), cut);
}

TEST(DiagnosticLineTest, CutsBetweenEscapesAndNotWithinOne) {
  const std::string message = Message(std::string(2000, '\n').c_str());
  std::string expected = " ";
  for (int i = 0; i < 949; ++i) {
    expected += "\\x0a";
  }
  EXPECT_EQ(message, expected + "...");
}

TEST(DiagnosticLineTest, TheSourceFollowsAMessageThatIsCut) {
  DiagnosticLine line;
  AppendMessage(line, "%s", std::string(100'000, 'x').c_str());
  line.AppendSource("file", 12);
  EXPECT_EQ(line.Text(), " " + std::string(3796, 'x') + "... [file:12]");
}

TEST(DiagnosticLineTest, CutsLongNamesAndTags) {
  const std::string name(1000, 'n');
  EXPECT_EQ(Head(0, 1, name.c_str()),
            "1970-01-01T00:00:00.000Z ERROR " + std::string(100, 'n') + ":");
  EXPECT_EQ(Tag(name.c_str()), " (" + std::string(100, 'n') + ")");
  EXPECT_EQ(Source(name.c_str(), 1), " [" + std::string(150, 'n') + ":1]");
}

TEST(DiagnosticLineTest, StaysWithin4000BytesWhateverThereIsToEscape) {
  const std::string controls(5000, '\x01');
  DiagnosticLine line;
  line.AppendHead(~0UL, 2, controls.c_str());
  line.AppendTag(controls.c_str());
  line.AppendTag(controls.c_str());
  AppendMessage(line, "%s", controls.c_str());
  line.AppendSource(controls.c_str(), -2147483647);
  EXPECT_LE(line.Text().size(), 4000U);
  EXPECT_GE(line.Text().size(), 3990U);
  EXPECT_EQ(Text(line).substr(line.Text().size() - 7), "\\x01...");
}

TEST(DiagnosticLineTest, AllocatesNothing) {
  const std::string text(5000, 'x');
  const long before = AllocationFailure::Allocations();
  DiagnosticLine line;
  line.AppendHead(1, 1, text.c_str());
  line.AppendTag(text.c_str());
  AppendMessage(line, "%s", text.c_str());
  line.AppendSource(text.c_str(), 1);
  EXPECT_EQ(AllocationFailure::Allocations(), before);
}

}  // namespace
