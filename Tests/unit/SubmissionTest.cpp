#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "FailureSites.h"
#include "FrameworkTest.h"
#include "GuardedBytes.h"
#include "LoggedLine.h"

namespace {

using namespace std::string_literals;

constexpr int kFailed = -10000;
constexpr char kUnknownEvent[] = "SUBMISSION_TEST";

int Submit(const std::string& eventId, const std::string& serviceName, const std::string& payload,
           int type = 0) {
  const GuardedBytes data(payload);
  return SendStringDataToMetric(eventId, serviceName, data.Data(), static_cast<int>(payload.size()),
                                static_cast<VMetricsHeaderIndexType>(type));
}

/// A submission that announces `length` bytes, whatever stands at `data`.
int SubmitLength(const char* data, int length) {
  return SendStringDataToMetric(kUnknownEvent, "service", data, length,
                                VMETRICS_HEADER_INDEX_FRAMEWORK);
}

std::string Line(const std::string& eventId, const std::string& serviceName,
                 const std::string& type = "0", const std::string& arguments = "") {
  return R"({"eventId":")" + eventId + R"(","timestamp":1700000000000,"terminalId":"0","type":")" +
         type + R"(","transactionId":"","businessType":"","serviceName":")" + serviceName +
         R"(","userName":"")" + arguments + "}";
}

class SubmissionTest : public FrameworkTest {
 protected:
  /// Nothing was written, the renderer has logged the length and the submission its failure.
  static void ExpectInvalidLength(const std::string& length) {
    ExpectOnlyLogged(LoggedInvalidLength("StringFmtMetricsMsgToString", length),
                     LoggedSubmissionFailure());
  }
};

// What is written ---------------------------------------------------------------------------------

TEST_F(SubmissionTest, WritesOneLine) {
  EXPECT_EQ(Submit("nox_user_connect", "zelviewer", R"({"stepName":"FirstPack"})", 2), 0);
  ExpectOnlyEmitted(R"({"eventId":"nox_user_connect","timestamp":1700000000000,"terminalId":"0",)"
                    R"("type":"2","transactionId":"","businessType":"","serviceName":"zelviewer",)"
                    R"("userName":"","args":{"stepName":"FirstPack"}})");
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
}

TEST_F(SubmissionTest, WritesAPlainTextAsItsEventAsks) {
  EXPECT_EQ(Submit("VMETRICS_USB_DRIVER_ERROR", "", "plain"), 0);
  ExpectOnlyEmitted(
      Line("VMETRICS_USB_DRIVER_ERROR", "", "0", R"(,"args":{"driverError":"plain"})"));
}

TEST_F(SubmissionTest, WritesAnEventThatIsNotInTheCatalogueWithoutArguments) {
  EXPECT_EQ(Submit(kUnknownEvent, "service", "{}"), 0);
  ExpectOnlyEmitted(Line(kUnknownEvent, "service"));
}

TEST_F(SubmissionTest, WritesAPayloadThatIsNotJsonWithoutArguments) {
  EXPECT_EQ(Submit("nox_user_connect", "service", "{"), 0);
  ExpectOnlyEmitted(Line("nox_user_connect", "service"));
}

TEST_F(SubmissionTest, StoresAnyTypeUnchecked) {
  for (const int type : {0, 1, 2, 3, 4, 7, -1, INT_MIN, INT_MAX}) {
    FakePlatform::Reset();
    EXPECT_EQ(Submit(kUnknownEvent, "service", "{}", type), 0);
    ExpectOnlyEmitted(Line(kUnknownEvent, "service", std::to_string(type)));
  }
}

TEST_F(SubmissionTest, WritesPercentSignsAsTheyStand) {
  VMetrics::GetMetricsStringMap()["%s%n"] = {"json", "n", "0"};
  EXPECT_EQ(Submit("%s%n", "%d", R"({"%s":"100%n"})"), 0);
  ExpectOnlyEmitted(Line("%s%n", "%d", "0", R"(,"args":{"%s":"100%n"})"));
}

TEST_F(SubmissionTest, EndsTextsAtTheirFirstNul) {
  EXPECT_EQ(Submit("a\0b"s, "c\0d"s, "{}"), 0);
  ExpectOnlyEmitted(Line("a", "c"));
}

// Names -------------------------------------------------------------------------------------------

TEST_F(SubmissionTest, AcceptsAnEventIdOf128Bytes) {
  const std::string eventId(128, 'e');
  VMetrics::GetMetricsStringMap()[eventId] = {"json", "n", "0"};
  EXPECT_EQ(Submit(eventId, "service", "{}"), 0);
  ExpectOnlyEmitted(Line(eventId, "service", "0", R"(,"args":{})"));
}

TEST_F(SubmissionTest, RefusesALongerEventId) {
  for (const std::size_t length : {129U, 1000U}) {
    FakePlatform::Reset();
    EXPECT_EQ(Submit(std::string(length, 'e'), "service", "{}"), kFailed);
    ExpectOnlyLogged(LoggedSubmissionFailure());
  }
}

TEST_F(SubmissionTest, AcceptsEmptyNames) {
  EXPECT_EQ(Submit("", "", "{}"), 0);
  ExpectOnlyEmitted(Line("", ""));
}

TEST_F(SubmissionTest, AcceptsAServiceNameOf31Bytes) {
  EXPECT_EQ(Submit(kUnknownEvent, std::string(31, 's'), "{}"), 0);
  ExpectOnlyEmitted(Line(kUnknownEvent, std::string(31, 's')));
}

TEST_F(SubmissionTest, LetsAServiceNameOf32BytesRunOnIntoTheLength) {
  EXPECT_EQ(Submit(kUnknownEvent, std::string(32, 's'), std::string(0x4241, 'x')), 0);
  ExpectOnlyEmitted(Line(kUnknownEvent, std::string(32, 's') + "AB"));
}

TEST_F(SubmissionTest, RefusesALongerServiceName) {
  for (const std::size_t length : {33U, 1000U}) {
    FakePlatform::Reset();
    EXPECT_EQ(Submit(kUnknownEvent, std::string(length, 's'), "{}"), kFailed);
    ExpectOnlyLogged(LoggedSubmissionFailure());
  }
}

// Lengths -----------------------------------------------------------------------------------------

TEST_F(SubmissionTest, AcceptsUpTo65535Bytes) {
  const std::string longest = '"' + std::string(65533, 'x') + '"';
  EXPECT_EQ(Submit("nox_user_connect", "", longest), 0);
  ExpectOnlyEmitted(Line("nox_user_connect", "", "0", ",\"args\":" + longest));
}

TEST_F(SubmissionTest, AcceptsASingleByte) {
  EXPECT_EQ(Submit("nox_user_connect", "", "7"), 0);
  ExpectOnlyEmitted(Line("nox_user_connect", "", "0", ",\"args\":7"));
}

TEST_F(SubmissionTest, ReadsNoMoreThanTheLength) {
  EXPECT_EQ(
      SendStringDataToMetric("nox_user_connect", "", "7777", 1, VMETRICS_HEADER_INDEX_FRAMEWORK),
      0);
  ExpectOnlyEmitted(Line("nox_user_connect", "", "0", ",\"args\":7"));
}

TEST_F(SubmissionTest, RefusesOneByteMoreWithoutNamingTheLength) {
  EXPECT_EQ(Submit(kUnknownEvent, "service", std::string(65536, 'x')), kFailed);
  ExpectOnlyLogged(LoggedSubmissionFailure());
}

TEST_F(SubmissionTest, RefusesNoBytes) {
  EXPECT_EQ(Submit(kUnknownEvent, "service", ""), kFailed);
  ExpectInvalidLength("0");
}

TEST_F(SubmissionTest, RefusesStillMoreBytesWithoutReadingThem) {
  const GuardedBytes data("{}");
  EXPECT_EQ(SubmitLength(data.Data(), 65537), kFailed);
  ExpectInvalidLength("65537");
  FakePlatform::Reset();
  EXPECT_EQ(SubmitLength(data.Data(), INT_MAX), kFailed);
  ExpectInvalidLength("2147483647");
}

TEST_F(SubmissionTest, RefusesANegativeLength) {
  const GuardedBytes data("{}");
  for (const int length : {-1, -395, -396, -397, INT_MIN}) {
    FakePlatform::Reset();
    EXPECT_EQ(SubmitLength(data.Data(), length), kFailed);
    ExpectOnlyLogged(LoggedSubmissionFailure());
  }
}

TEST_F(SubmissionTest, RefusesNullForAPayloadOfAnyLength) {
  for (const int length : {0, 5, 65536, 70000, INT_MAX, -1}) {
    SCOPED_TRACE(length);
    FakePlatform::Reset();
    EXPECT_EQ(SubmitLength(nullptr, length), kFailed);
    ExpectOnlyLogged(LoggedSubmissionFailure());
  }
}

// Failures ----------------------------------------------------------------------------------------

int SubmitAnything() { return Submit("nox_user_connect", "service", "{}"); }

TEST_F(SubmissionTest, FailsWhenACopyIntoTheRecordIsRefused) {
  for (const int copy : {1, 2, 3}) {
    SCOPED_TRACE(copy);
    FakePlatform::Reset();
    FakePlatform::FailCopy(copy);
    EXPECT_EQ(SubmitAnything(), kFailed);
    ExpectOnlyLogged(LoggedSubmissionFailure());
  }
}

TEST_F(SubmissionTest, FailsWhenTheRendererCannotCopyTheValue) {
  FakePlatform::FailCopy(4);
  EXPECT_EQ(SubmitAnything(), kFailed);
  ExpectOnlyLogged(LoggedLine(kVMetricsUnit, "GetStringBaseMetricsString", 1, "memcpy error"),
                   LoggedSubmissionFailure());
}

TEST_F(SubmissionTest, CopiesFourTimes) {
  FakePlatform::FailCopy(5);
  EXPECT_EQ(SubmitAnything(), 0);
}

TEST_F(SubmissionTest, ChecksTheEventIdThenTheServiceNameThenThePayload) {
  const std::string tooLong(129, 'x');
  const auto lineOf = [](const std::string& eventId, const std::string& serviceName,
                         const char* data) {
    FakePlatform::Reset();
    SendStringDataToMetric(eventId, serviceName, data, 2, VMETRICS_HEADER_INDEX_FRAMEWORK);
    return FakePlatform::LogLines().at(0).line;
  };
  EXPECT_EQ(lineOf(tooLong, tooLong, nullptr), lineOf(tooLong, "", "{}"));
  EXPECT_EQ(lineOf("", tooLong, nullptr), lineOf("", tooLong, "{}"));
}

TEST_F(SubmissionTest, LogsEachFailureWithALineOfItsOwn) {
  ExpectSitesOfTheirOwn({[] { return SubmitLength("{}", -1); }, WithRefusedCopy(1, SubmitAnything),
                         WithRefusedCopy(2, SubmitAnything), WithRefusedCopy(3, SubmitAnything),
                         WithRefusedCopy(4, SubmitAnything)},
                        LoggedSubmissionFailure());
}

}  // namespace
