// What a record that renders looks like. Lengths and their limits are in RecordLengthTest.cpp,
// texts that nobody should have sent in RecordTextTest.cpp.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "LoggedLine.h"
#include "RecordTest.h"

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kFramesPerSecond("\x07\0\0\0\x01\0\x0B\x12\x04\0\0\0\x3C\0\0\0", 16);
constexpr char kFramesPerSecondLine[] =
    R"({"eventId":"302710785","timestamp":1700000000000,"moduleId":4619,"terminalId":"7",)"
    R"("args":{"displayFPS":60}})";

TextRecord FullRecord() {
  TextRecord record;
  record.terminalId = 7;
  record.type = 2;
  record.eventId = "nox_user_connect";
  record.userName = "user";
  record.transactionId = "transaction";
  record.businessType = "business";
  record.serviceName = "service";
  record.value = R"({"stepName":"FirstPack"})";
  return record;
}

constexpr char kFullRecordLine[] =
    R"({"eventId":"nox_user_connect","timestamp":1700000000000,"terminalId":"7","type":"2",)"
    R"("transactionId":"transaction","businessType":"business","serviceName":"service",)"
    R"("userName":"user","args":{"stepName":"FirstPack"}})";

using RecordRenderingTest = RecordTest;

// Members -----------------------------------------------------------------------------------------

TEST_F(RecordRenderingTest, RendersANumericRecord) {
  EXPECT_EQ(RenderNumeric(kFramesPerSecond), kFramesPerSecondLine);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordRenderingTest, RendersTheRecordThatAMessageCarries) {
  EXPECT_EQ(RenderMessage(kFramesPerSecond), kFramesPerSecondLine);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordRenderingTest, RendersAStringRecord) {
  EXPECT_EQ(RenderText(FullRecord()), kFullRecordLine);
  EXPECT_EQ(RenderCheckedText(FullRecord()), kFullRecordLine);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordRenderingTest, RendersEmptyTextsAsEmptyStrings) {
  TextRecord record;
  EXPECT_EQ(RenderText(record),
            R"({"eventId":"","timestamp":1700000000000,"terminalId":"0","type":"0",)"
            R"("transactionId":"","businessType":"","serviceName":"","userName":""})");
}

TEST_F(RecordRenderingTest, RendersHeaderNumbersAsSignedTexts) {
  EXPECT_EQ(RenderNumeric(NumericRecord(0xFFFFFFFF, 0xFFFFFFFF, "")),
            R"({"eventId":"-1","timestamp":1700000000000,"moduleId":65535,"terminalId":"-1"})");
  EXPECT_EQ(RenderNumeric(NumericRecord(0x7FFFFFFF, 0x80000000, "")),
            R"({"eventId":"-2147483648","timestamp":1700000000000,"moduleId":32768,)"
            R"("terminalId":"2147483647"})");
  TextRecord record;
  record.terminalId = 4294967295;
  record.type = 2147483648;
  EXPECT_EQ(RenderText(record),
            R"({"eventId":"","timestamp":1700000000000,"terminalId":"-1","type":"-2147483648",)"
            R"("transactionId":"","businessType":"","serviceName":"","userName":""})");
}

TEST_F(RecordRenderingTest, TakesTheModuleIdFromTheUpperHalfOfTheEventId) {
  EXPECT_EQ(RenderNumeric(NumericRecord(0, 0x0001FFFF, "")),
            R"({"eventId":"131071","timestamp":1700000000000,"moduleId":1,"terminalId":"0"})");
  EXPECT_EQ(RenderNumeric(NumericRecord(0, 0x0000FFFF, "")),
            R"({"eventId":"65535","timestamp":1700000000000,"moduleId":0,"terminalId":"0"})");
}

TEST_F(RecordRenderingTest, LooksANumericIdUpAsSigned) {
  VMetrics::GetMetricsMap()[-5] = {"int", "n", "0"};
  EXPECT_EQ(RenderNumeric(NumericRecord(0, 0xFFFFFFFB, ValueBytes(60))),
            R"({"eventId":"-5","timestamp":1700000000000,"moduleId":65535,"terminalId":"0",)"
            R"("args":{"n":60}})");
}

// The clock ---------------------------------------------------------------------------------------

TEST_F(RecordRenderingTest, DiffersOnlyInItsTimestampTheNextTime) {
  FakePlatform::ScriptTicks({1, 18446744073709551615U, 3, 4});
  EXPECT_EQ(RenderNumeric(kFramesPerSecond),
            R"({"eventId":"302710785","timestamp":1,"moduleId":4619,"terminalId":"7",)"
            R"("args":{"displayFPS":60}})");
  EXPECT_EQ(RenderNumeric(kFramesPerSecond),
            R"({"eventId":"302710785","timestamp":18446744073709551615,"moduleId":4619,)"
            R"("terminalId":"7","args":{"displayFPS":60}})");
  TextRecord record;
  EXPECT_EQ(RenderText(record),
            R"({"eventId":"","timestamp":3,"terminalId":"0","type":"0",)"
            R"("transactionId":"","businessType":"","serviceName":"","userName":""})");
  EXPECT_EQ(RenderText(record),
            R"({"eventId":"","timestamp":4,"terminalId":"0","type":"0",)"
            R"("transactionId":"","businessType":"","serviceName":"","userName":""})");
}

TEST_F(RecordRenderingTest, ReadsTheTickOnceARecord) {
  RenderNumeric(kFramesPerSecond);
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
  RenderMessage(kFramesPerSecond);
  EXPECT_EQ(FakePlatform::TicksRead(), 2);
  RenderText(FullRecord());
  EXPECT_EQ(FakePlatform::TicksRead(), 3);
  RenderCheckedText(FullRecord());
  EXPECT_EQ(FakePlatform::TicksRead(), 4);
}

// Addresses ---------------------------------------------------------------------------------------

TEST_F(RecordRenderingTest, RendersARecordAtAnyAddress) {
  const std::string message = Message(1, 2, 3, kFramesPerSecond);
  const std::string text = FullRecord().Bytes();
  alignas(8) char bytes[512];
  for (std::size_t offset = 0; offset < 8; ++offset) {
    SCOPED_TRACE(offset);
    char* const place = bytes + offset;
    kFramesPerSecond.copy(place, kFramesPerSecond.size());
    EXPECT_EQ(VMetrics::GetBaseMetricsString(reinterpret_cast<const VMetricsData*>(place)),
              kFramesPerSecondLine);
    message.copy(place, message.size());
    EXPECT_EQ(VMetrics::FmtMetricsMsgToString(reinterpret_cast<const VMessage*>(place)),
              kFramesPerSecondLine);
    text.copy(place, text.size());
    const auto* const record = reinterpret_cast<const VMetricsDataString*>(place);
    EXPECT_EQ(VMetrics::GetStringBaseMetricsString(record), kFullRecordLine);
    EXPECT_EQ(VMetrics::StringFmtMetricsMsgToString(record), kFullRecordLine);
  }
}

// Arguments ---------------------------------------------------------------------------------------

TEST_F(RecordRenderingTest, NestsAValueOfEachType) {
  ExpectArguments({"string", "n", "0"}, "text", R"(,"args":{"n":"text"})");
  ExpectArguments({"int", "n", "0"}, ValueBytes(-60), R"(,"args":{"n":-60})");
  ExpectArguments({"uint64_t", "n", "0"}, ValueBytes(UINT64_MAX),
                  R"(,"args":{"n":18446744073709551615})");
  ExpectArguments({"int64_t", "n", "0"}, ValueBytes(INT64_MIN),
                  R"(,"args":{"n":-9223372036854775808})");
  ExpectArguments({"double", "n", "0"}, ValueBytes(12.5), R"(,"args":{"n":12.5})");
  ExpectArguments({"bool", "n", "0"}, "\x01", R"(,"args":{"n":true})");
  ExpectArguments({"enum", "n", "0"}, ValueBytes(60), R"(,"args":{"n":"60"})");
  ExpectArguments({"json", "n", "0"}, R"({"a":[1,2]})", R"(,"args":{"a":[1,2]})");
}

TEST_F(RecordRenderingTest, NestsAPrivateMetricLikeAPublicOne) {
  ExpectArguments({"int", "n", "1"}, ValueBytes(60), R"(,"args":{"n":60})");
}

TEST_F(RecordRenderingTest, NestsADoubleThatIsNoNumberAsNull) {
  ExpectArguments({"double", "n", "0"}, ValueBytes(__builtin_nan("")), R"(,"args":{"n":null})");
  ExpectArguments({"double", "n", "0"}, ValueBytes(__builtin_inf()), R"(,"args":{"n":null})");
}

TEST_F(RecordRenderingTest, NestsAnEmptyObjectForAnUnknownType) {
  ExpectArguments({"Int", "n", "0"}, ValueBytes(60), R"(,"args":{})");
  ExpectArguments({"", "", ""}, "", R"(,"args":{})");
}

TEST_F(RecordRenderingTest, HasNoArgumentsForAnIdThatIsNotInTheCatalogue) {
  EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, ValueBytes(60))), NumericLine(""));
  EXPECT_EQ(RenderText(Carrying("{}")), TextLine(""));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_TRUE(CatalogueIsUnchanged());
}

TEST_F(RecordRenderingTest, WantsOnlyTypeAndNameOfAnEntry) {
  ExpectArguments({"int", "n"}, ValueBytes(60), R"(,"args":{"n":60})");
  ExpectArguments({"json", "n"}, "{}", R"(,"args":{})");
}

TEST_F(RecordRenderingTest, HasNoArgumentsForAnEntryWithoutItsTexts) {
  ExpectArguments({}, ValueBytes(60), "");
  ExpectArguments({"int"}, ValueBytes(60), "");
  ExpectArguments({"json"}, "{}", "");
}

TEST_F(RecordRenderingTest, HasNoArgumentsWhenTheValueCannotBeCopied) {
  Describe({"int", "n", "0"});
  FakePlatform::FailCopy(2);
  EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, ValueBytes(60))), NumericLine(""));
  FakePlatform::FailCopy(2);
  EXPECT_EQ(RenderText(Carrying(ValueBytes(60))), TextLine(""));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordRenderingTest, NestsAnyJsonValueLetterForLetter) {
  for (const std::string json :
       {"{}", "[]", "60", "-0", "2.50", "\"text\"", "true", "null",
        "123456789012345678901234567890", R"({"b":1,"a":2,"b":3})", R"(["\u00e9\/","é"])"}) {
    SCOPED_TRACE(json);
    ExpectArguments({"json", "n", "0"}, json, ",\"args\":" + json);
  }
}

// A platform may refuse them; the embedded one does not.
TEST_F(RecordRenderingTest, NestsANumberThatNoDoubleHolds) {
  ExpectArguments({"json", "n", "0"}, "1e400", ",\"args\":1e400");
}

TEST_F(RecordRenderingTest, DropsTheWhiteSpaceOfAJsonValue) {
  ExpectArguments({"json", "n", "0"}, "\r\n{\n\t\"a b\" : [ 1 ,\r\n 2 ]\n}\n",
                  R"(,"args":{"a b":[1,2]})");
}

TEST_F(RecordRenderingTest, ReadsAJsonValueUpToItsEnd) {
  ExpectArguments({"json", "n", "0"}, "{\"a\":1}\0behind"s, R"(,"args":{"a":1})");
}

TEST_F(RecordRenderingTest, HasNoArgumentsForTextThatIsNotJson) {
  for (const std::string text :
       {"", " ", "not JSON", "{\"a\":", "{\"a\":1}}", "{'a':1}", "{\"a\":1,}", "NaN", "01", "%s",
        "\"\xFF\"", "\"\n\"", "\"\\ud800\"", "\xEF\xBB\xBF{}"}) {
    SCOPED_TRACE(text);
    ExpectArguments({"json", "n", "0"}, text, "");
  }
}

// A parser that calls itself for each level would run out of stack.
TEST_F(RecordRenderingTest, HasNoArgumentsForBracketsWithoutEnd) {
  ExpectArguments({"json", "n", "0"}, std::string(65535, '['), "");
  ExpectArguments({"json", "n", "0"}, std::string(32767, '[') + std::string(32767, ']'), "");
}

// What fails --------------------------------------------------------------------------------------

TEST_F(RecordRenderingTest, RendersNothingOfANullPointerAndKeepsSilent) {
  EXPECT_EQ(VMetrics::GetBaseMetricsString(nullptr), "");
  EXPECT_EQ(VMetrics::GetStringBaseMetricsString(nullptr), "");
  EXPECT_EQ(VMetrics::FmtMetricsMsgToString(nullptr), "");
  EXPECT_EQ(VMetrics::StringFmtMetricsMsgToString(nullptr), "");
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_EQ(FakePlatform::TicksRead(), 0);
}

TEST_F(RecordRenderingTest, RendersNothingOfANumericRecordThatCannotBeCopied) {
  const auto error = LoggedLine(kVMetricsUnit, "GetBaseMetricsString", 1, "memcpy error");
  FakePlatform::FailCopy(1);
  EXPECT_EQ(RenderNumeric(kFramesPerSecond), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(error));
  FakePlatform::FailCopy(1);
  EXPECT_EQ(RenderMessage(kFramesPerSecond), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(error, error));
}

TEST_F(RecordRenderingTest, RendersNothingOfAStringRecordThatCannotBeCopied) {
  const auto error = LoggedLine(kVMetricsUnit, "GetStringBaseMetricsString", 1, "memcpy error");
  FakePlatform::FailCopy(1);
  EXPECT_EQ(RenderText(FullRecord()), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(error));
  FakePlatform::FailCopy(1);
  EXPECT_EQ(RenderCheckedText(FullRecord()), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(error, error));
}

TEST_F(RecordRenderingTest, LogsEachRefusedCopyWithALineOfItsOwn) {
  FakePlatform::FailCopy(1);
  RenderNumeric(kFramesPerSecond);
  FakePlatform::FailCopy(1);
  RenderText(FullRecord());
  ASSERT_EQ(FakePlatform::LogLines().size(), 2U);
  EXPECT_NE(FakePlatform::LogLines()[0].line, FakePlatform::LogLines()[1].line);
}

}  // namespace
