// How many value bytes a record may announce, and how many of them are read. Records end right
// before an unreadable page.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "LoggedLine.h"
#include "RecordTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kTooLong[] = {65536, 65537, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};

/// A length that an entry refuses with a line, and how that line shows it.
struct RefusedLength {
  std::uint32_t length;
  const char* text;
};

class RecordLengthTest : public RecordTest {
 protected:
  /// A string record without a value that announces `length` bytes.
  static TextRecord Announcing(std::uint32_t length) {
    TextRecord record = Carrying("");
    record.dataLength = length;
    return record;
  }
};

// The renderers -----------------------------------------------------------------------------------

TEST_F(RecordLengthTest, RendersUpTo65535Bytes) {
  Describe({"string", "n", "0"});
  const std::string longest(65535, 'x');
  ExpectArguments("", R"(,"args":{"n":""})");
  ExpectArguments("x", R"(,"args":{"n":"x"})");
  ExpectArguments(longest, R"(,"args":{"n":")" + longest + "\"}");
}

TEST_F(RecordLengthTest, RendersAJsonValueOf65535Bytes) {
  Describe({"json", "n", "0"});
  const std::string longest = '"' + std::string(65533, 'x') + '"';
  ExpectArguments(longest, ",\"args\":" + longest);
}

TEST_F(RecordLengthTest, RendersNoMoreThan65535BytesAndKeepsSilent) {
  for (const std::uint32_t length : kTooLong) {
    SCOPED_TRACE(length);
    EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, length, "")), "");
    EXPECT_EQ(RenderText(Announcing(length)), "");
  }
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_EQ(FakePlatform::TicksRead(), 0);
}

TEST_F(RecordLengthTest, RefusesALengthWithoutACopy) {
  FakePlatform::FailCopy(1);
  RenderNumeric(NumericRecord(0, kMetric, 65536, ""));
  RenderText(Announcing(65536));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());  // A refused copy would have been logged.
}

TEST_F(RecordLengthTest, DoesNotReadBeyondAJsonValue) {
  Describe({"json", "n", "0"});
  EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, 2, "{}{}")), NumericLine(",\"args\":{}"));
  EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, 6, R"({"a":1})")), NumericLine(""));
}

TEST_F(RecordLengthTest, DoesNotReadBeyondAStringValue) {
  Describe({"string", "n", "0"});
  EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, 3, "abcdef")),
            NumericLine(R"(,"args":{"n":"abc"})"));
}

// The entry for messages --------------------------------------------------------------------------

TEST_F(RecordLengthTest, LetsAMessagePassWithoutAValue) {
  EXPECT_EQ(RenderMessage(NumericRecord(0, kMetric, "")), NumericLine(""));
  EXPECT_EQ(RenderMessage(NumericRecord(0, kMetric, "x")), NumericLine(""));
  EXPECT_EQ(RenderMessage(NumericRecord(0, kMetric, std::string(65535, 'x'))), NumericLine(""));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordLengthTest, KeepsSilentOfAMessageOneByteTooLong) {
  EXPECT_EQ(RenderMessage(NumericRecord(0, kMetric, 65536, "")), "");
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordLengthTest, LogsALongerMessage) {
  for (const auto& [length, text] : {RefusedLength{65537, "65537"},
                                     {0x7FFFFFFF, "2147483647"},
                                     {0x80000000, "-2147483648"},
                                     {0xFFFFFFFF, "-1"}}) {
    FakePlatform::Reset();
    EXPECT_EQ(RenderMessage(NumericRecord(0, kMetric, length, "")), "");
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedInvalidLength("FmtMetricsMsgToString", text)));
    EXPECT_EQ(FakePlatform::TicksRead(), 0);
  }
}

// The entry for string records --------------------------------------------------------------------

TEST_F(RecordLengthTest, LetsAStringRecordPassWithAValue) {
  EXPECT_EQ(RenderCheckedText(Carrying("x")), TextLine(""));
  EXPECT_EQ(RenderCheckedText(Carrying(std::string(65535, 'x'))), TextLine(""));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordLengthTest, KeepsSilentOfAStringRecordOneByteTooLong) {
  EXPECT_EQ(RenderCheckedText(Announcing(65536)), "");
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordLengthTest, LogsAStringRecordWithoutAValueAndALongerOne) {
  for (const auto& [length, text] : {RefusedLength{0, "0"},
                                     {65537, "65537"},
                                     {0x7FFFFFFF, "2147483647"},
                                     {0x80000000, "-2147483648"},
                                     {0xFFFFFFFF, "-1"}}) {
    FakePlatform::Reset();
    EXPECT_EQ(RenderCheckedText(Announcing(length)), "");
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedInvalidLength("StringFmtMetricsMsgToString", text)));
    EXPECT_EQ(FakePlatform::TicksRead(), 0);
  }
}

TEST_F(RecordLengthTest, LogsTheLengthWithALineOfItsOwnInEachEntry) {
  RenderMessage(NumericRecord(0, kMetric, 65537, ""));
  RenderCheckedText(Announcing(65537));
  ASSERT_EQ(FakePlatform::LogLines().size(), 2U);
  EXPECT_NE(FakePlatform::LogLines()[0].line, FakePlatform::LogLines()[1].line);
}

// Values shorter than their type ------------------------------------------------------------------

TEST_F(RecordLengthTest, PadsAnIntWithZeros) {
  Describe({"int", "n", "0"});
  const char* const numbers[] = {"0", "255", "65535", "16777215", "-1", "-1"};
  for (std::size_t length = 0; length <= 5; ++length) {
    ExpectArguments(std::string(length, '\xFF'),
                    R"(,"args":{"n":)" + std::string(numbers[length]) + "}");
  }
}

TEST_F(RecordLengthTest, PadsAnEnumWithZeros) {
  Describe({"enum", "n", "0"});
  const char* const numbers[] = {"0", "255", "65535", "16777215", "-1", "-1"};
  for (std::size_t length = 0; length <= 5; ++length) {
    ExpectArguments(std::string(length, '\xFF'),
                    R"(,"args":{"n":")" + std::string(numbers[length]) + "\"}");
  }
}

TEST_F(RecordLengthTest, PadsA64BitNumberWithZeros) {
  for (const char* type : {"uint64_t", "int64_t"}) {
    Describe({type, "n", "0"});
    const std::string all = *type == 'u' ? "18446744073709551615" : "-1";
    const std::string numbers[] = {"0",
                                   "255",
                                   "65535",
                                   "16777215",
                                   "4294967295",
                                   "1099511627775",
                                   "281474976710655",
                                   "72057594037927935",
                                   all,
                                   all};
    for (std::size_t length = 0; length <= 9; ++length) {
      ExpectArguments(std::string(length, '\xFF'), R"(,"args":{"n":)" + numbers[length] + "}");
    }
  }
}

TEST_F(RecordLengthTest, PadsADoubleWithZeros) {
  Describe({"double", "n", "0"});
  // Until the two most significant bytes, the last ones, are there, the number is next to nothing.
  const std::string whole = "\x99\x99\x99\x99\x99\x99\x29\x40";
  const char* const numbers[] = {"0",
                                 "7.56e-322",
                                 "1.9427e-319",
                                 "4.9734273e-317",
                                 "1.2731974743e-314",
                                 "3.25938553492e-312",
                                 "8.344026969402e-310",
                                 "7.120236347223044e-308",
                                 "12.799999999999999",
                                 "12.799999999999999"};
  for (std::size_t length = 0; length <= 9; ++length) {
    ExpectArguments((whole + "\xFF").substr(0, length),
                    R"(,"args":{"n":)" + std::string(numbers[length]) + "}");
  }
}

TEST_F(RecordLengthTest, PadsABoolWithZeros) {
  Describe({"bool", "n", "0"});
  ExpectArguments("", R"(,"args":{"n":false})");
  ExpectArguments("\x01", R"(,"args":{"n":true})");
  ExpectArguments("\x01\xFF", R"(,"args":{"n":true})");
}

TEST_F(RecordLengthTest, HasNoArgumentsForAJsonValueWithoutBytes) {
  Describe({"json", "n", "0"});
  ExpectArguments("", "");
}

}  // namespace
