#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "DotRecord/StepRecord.h"
#include "SpanMatchers.h"

namespace {

using vmetrics::DotStepRecord;
using vmetrics::ReportStep;

DotStepRecord FullRecord() { return {1, 4, 0, "order-7", "LOGIN", "authenticate", kSpanA, kSpanB}; }

/// The text that ReportStep writes, which must be its one line.
std::string Reported(const DotStepRecord& record, unsigned long start = 1000,
                     unsigned long end = 1250) {
  FakePlatform::Reset();
  FakePlatform::ScriptTicks({1300});
  ReportStep(start, end, record);
  EXPECT_EQ(FakePlatform::MetricsLines().size(), 1U);
  return FakePlatform::MetricsLines().empty() ? "" : FakePlatform::MetricsLines()[0].text;
}

/// The object under "args", which comes last.
std::string ReportedArguments(const DotStepRecord& record, unsigned long start = 1000,
                              unsigned long end = 1250) {
  const std::string text = Reported(record, start, end);
  const std::string key = "\"args\":";
  const std::size_t at = text.find(key) + key.size();
  return text.substr(at, text.size() - at - 1);
}

TEST(StepRecordTest, WholeRecordIsOneLineWithItsMembersInOrder) {
  EXPECT_EQ(Reported(FullRecord()),
            R"({"eventId":"LOGIN","timestamp":1300,"terminalId":"0","type":"2",)"
            R"("transactionId":"order-7","spanId":"3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4",)"
            R"("parentSpanId":"d091bb5c-22ae-e7e1-d5c3-1f792082352c",)"
            R"("args":{"stepName":"authenticate","errorCode":0,"isSuccess":1,)"
            R"("startTime":1000,"endTime":1250,"usedTime":250}})");
}

TEST(StepRecordTest, EmptyTextsAreLeftOutButTheStepName) {
  EXPECT_EQ(Reported({1, 4, 0, "", "", "", "", ""}),
            R"({"timestamp":1300,"terminalId":"0","type":"2","args":{"stepName":"",)"
            R"("errorCode":0,"isSuccess":1,"startTime":1000,"endTime":1250,"usedTime":250}})");
}

// All sixteen ways in which the four texts can be there or not.
TEST(StepRecordTest, EachTextIsLeftOutByItselfWhenEmpty) {
  for (int present = 0; present < 16; ++present) {
    DotStepRecord record = FullRecord();
    std::string expected = "{";
    const auto keepIf = [&](int bit, std::string& value, const char* key) {
      if ((present & bit) != 0) {
        expected += "\"" + std::string(key) + "\":\"" + value + "\",";
      } else {
        value.clear();
      }
    };
    keepIf(1, record.eventId, "eventId");
    expected += R"("timestamp":1300,"terminalId":"0","type":"2",)";
    keepIf(2, record.transactionId, "transactionId");
    keepIf(4, record.spanId, "spanId");
    keepIf(8, record.parentSpanId, "parentSpanId");
    expected += R"("args":{"stepName":"authenticate","errorCode":0,"isSuccess":1,)"
                R"("startTime":1000,"endTime":1250,"usedTime":250}})";
    EXPECT_EQ(Reported(record), expected);
  }
}

TEST(StepRecordTest, LineGoesOutUnderTheFixedFormat) {
  Reported(FullRecord());
  EXPECT_EQ(FakePlatform::MetricsLines()[0].format, "%s");
}

TEST(StepRecordTest, PercentSignsAreWrittenAsTheyStand) {
  DotStepRecord record = FullRecord();
  record.stepName = "100 %s %n";
  EXPECT_EQ(ReportedArguments(record), R"({"stepName":"100 %s %n","errorCode":0,"isSuccess":1,)"
                                       R"("startTime":1000,"endTime":1250,"usedTime":250})");
}

TEST(StepRecordTest, ClockIsReadOnceForTheTimestamp) {
  FakePlatform::Reset();
  FakePlatform::ScriptTicks({1, 2, 3});
  ReportStep(1000, 1250, FullRecord());
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
}

TEST(StepRecordTest, NothingIsLoggedAndNoFileIsTouched) {
  Reported(FullRecord());
  EXPECT_TRUE(FakePlatform::LogLines().empty());
  EXPECT_TRUE(FakePlatform::FileOperations().empty());
}

TEST(StepRecordTest, OnlyErrorCodeZeroIsASuccess) {
  DotStepRecord record = FullRecord();
  const auto expected = [](const char* code, const char* success) {
    return R"({"stepName":"authenticate","errorCode":)" + std::string(code) + R"(,"isSuccess":)" +
           success + R"(,"startTime":1000,"endTime":1250,"usedTime":250})";
  };
  record.errorCode = 0;
  EXPECT_EQ(ReportedArguments(record), expected("0", "1"));
  record.errorCode = 1;
  EXPECT_EQ(ReportedArguments(record), expected("1", "0"));
  record.errorCode = -5;
  EXPECT_EQ(ReportedArguments(record), expected("-5", "0"));
  record.errorCode = INT_MAX;
  EXPECT_EQ(ReportedArguments(record), expected("2147483647", "0"));
  record.errorCode = INT_MIN;
  EXPECT_EQ(ReportedArguments(record), expected("-2147483648", "0"));
}

TEST(StepRecordTest, CreateRdsIsAChildOfConnect) {
  DotStepRecord record = FullRecord();
  record.stepName = "create rds";
  EXPECT_EQ(ReportedArguments(record),
            R"({"stepName":"create rds","parentStepName":"Connect","errorCode":0,"isSuccess":1,)"
            R"("startTime":1000,"endTime":1250,"usedTime":250})");
}

TEST(StepRecordTest, OnlyTheExactNameCreateRdsHasAParentStep) {
  for (const std::string name :
       {"Create rds", "create Rds", "CREATE RDS", "create rd", "create rdss", " create rds",
        "create rds ", "create  rds", "create_rds", "create", "rds", ""}) {
    DotStepRecord record = FullRecord();
    record.stepName = name;
    EXPECT_EQ(ReportedArguments(record), R"({"stepName":")" + name +
                                             R"(","errorCode":0,"isSuccess":1,)"
                                             R"("startTime":1000,"endTime":1250,"usedTime":250})");
  }
}

// The name is compared whole, a NUL and what follows it included.
TEST(StepRecordTest, CreateRdsWithANulBehindIsAnotherName) {
  DotStepRecord record = FullRecord();
  record.stepName = std::string("create rds\0", 11);
  EXPECT_EQ(ReportedArguments(record),
            R"({"stepName":"create rds\u0000","errorCode":0,"isSuccess":1,)"
            R"("startTime":1000,"endTime":1250,"usedTime":250})");
}

TEST(StepRecordTest, UsedTimeWrapsWhenTheClockWentBack) {
  EXPECT_EQ(ReportedArguments(FullRecord(), 1250, 1000),
            R"({"stepName":"authenticate","errorCode":0,"isSuccess":1,)"
            R"("startTime":1250,"endTime":1000,"usedTime":18446744073709551366})");
}

TEST(StepRecordTest, TicksHave64UnsignedBits) {
  EXPECT_EQ(ReportedArguments(FullRecord(), 0, ULONG_MAX),
            R"({"stepName":"authenticate","errorCode":0,"isSuccess":1,)"
            R"("startTime":0,"endTime":18446744073709551615,"usedTime":18446744073709551615})");
  EXPECT_EQ(ReportedArguments(FullRecord(), ULONG_MAX, 0),
            R"({"stepName":"authenticate","errorCode":0,"isSuccess":1,)"
            R"("startTime":18446744073709551615,"endTime":0,"usedTime":1})");
}

TEST(StepRecordTest, StepWithoutDurationUsedNoTime) {
  EXPECT_EQ(ReportedArguments(FullRecord(), 1000, 1000),
            R"({"stepName":"authenticate","errorCode":0,"isSuccess":1,)"
            R"("startTime":1000,"endTime":1000,"usedTime":0})");
}

TEST(StepRecordTest, TextsOfTheCallerAreEscaped) {
  const DotStepRecord record = {1, 4, 0, "a\"b", "c\\d", "e\nf", "g\x7Fh", "i\xFFj"};
  EXPECT_EQ(Reported(record), R"({"eventId":"c\\d","timestamp":1300,"terminalId":"0","type":"2",)"
                              R"("transactionId":"a\"b","spanId":"g\u007fh",)"
                              "\"parentSpanId\":\"i\xEF\xBF\xBDj\","
                              R"("args":{"stepName":"e\nf","errorCode":0,"isSuccess":1,)"
                              R"("startTime":1000,"endTime":1250,"usedTime":250}})");
}

// Status and kind are not for receivers of the record.
TEST(StepRecordTest, StatusAndKindDoNotShow) {
  DotStepRecord record = FullRecord();
  const std::string text = Reported(record);
  record.status = 7;
  record.kind = 9;
  EXPECT_EQ(Reported(record), text);
}

}  // namespace
