#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "FrameworkTest.h"
#include "LoggedLine.h"

namespace {

class ConnectionReportersTest : public FrameworkTest {
 protected:
  /// The one line of a connecting step: rendered at `timestamp`, with these arguments.
  static void ExpectStep(const std::string& timestamp, const std::string& arguments) {
    ExpectOnlyEmitted(R"({"eventId":"nox_user_connect","timestamp":)" + timestamp +
                      R"(,"terminalId":"0","type":"2","transactionId":"","businessType":"",)"
                      R"("serviceName":"zelviewer","userName":"","args":)" +
                      arguments + "}");
  }

  /// The one line of an operation, with what follows its header members.
  static void ExpectOperation(const std::string& arguments) {
    ExpectOnlyEmitted(R"({"eventId":"nox_user_operation","timestamp":1700000000000,)"
                      R"("terminalId":"0","type":"2","transactionId":"","businessType":"",)"
                      R"("serviceName":"ZELVIEWER","userName":"")" +
                      arguments + "}");
  }

  static void RegisterOperation() {
    char definition[] = "nox_user_operation;json;userOperation;0";
    ASSERT_EQ(VMetrics::RegisterMetricsStringDataType(definition), 0);
    FakePlatform::Reset();
  }
};

// bizboxCreation ----------------------------------------------------------------------------------

TEST_F(ConnectionReportersTest, ReportsBizboxCreation) {
  EXPECT_EQ(SendBizboxInsToMetric(), 0);
  ExpectOnlyEmitted(R"({"eventId":"nox_user_connect","timestamp":1700000000000,"terminalId":"0",)"
                    R"("type":"2","transactionId":"","businessType":"","serviceName":"zelviewer",)"
                    R"("userName":"","args":{"stepName":"bizboxCreation","source":"zelviewer",)"
                    R"("parentStepName":"Connect","isSuccess":1,"startTime":1700000000000,)"
                    R"("endTime":1700000000000,"resultMsg":"ok","usedTime":0}})");
}

TEST_F(ConnectionReportersTest, StartsAndEndsBizboxCreationAtOneReadingOfTheTick) {
  FakePlatform::ScriptTicks({18446744073709551615U, 2, 3});
  EXPECT_EQ(SendBizboxInsToMetric(), 0);
  ExpectStep("2",
             R"({"stepName":"bizboxCreation","source":"zelviewer","parentStepName":"Connect",)"
             R"("isSuccess":1,"startTime":18446744073709551615,"endTime":18446744073709551615,)"
             R"("resultMsg":"ok","usedTime":0})");
  EXPECT_EQ(FakePlatform::TicksRead(), 2);  // The other is the line's.
}

// FirstPack ---------------------------------------------------------------------------------------

TEST_F(ConnectionReportersTest, ReportsAFirstPackThatTimedOut) {
  FakePlatform::ScriptTicks({1700000002500, 1700000002501, 3});
  EXPECT_EQ(SendConnectVagToMetric(1700000000000, 0), 0);
  ExpectStep("1700000002501",
             R"({"stepName":"FirstPack","source":"zelviewer","parentStepName":"Connect",)"
             R"("isSuccess":0,"startTime":1700000000000,"endTime":1700000002500,)"
             R"("usedTime":2500,"errorMsg":"timeout"})");
  EXPECT_EQ(FakePlatform::TicksRead(), 2);
}

TEST_F(ConnectionReportersTest, ReportsAFirstPackThatArrivedWithItsNumber) {
  for (const int isSuccess : {1, -1, 7, INT_MIN, INT_MAX}) {
    FakePlatform::Reset();
    EXPECT_EQ(SendConnectVagToMetric(1699999999999, isSuccess), 0);
    ExpectStep("1700000000000",
               R"({"stepName":"FirstPack","source":"zelviewer","parentStepName":"Connect",)"
               R"("isSuccess":)" +
                   std::to_string(isSuccess) +
                   R"(,"startTime":1699999999999,"endTime":1700000000000,"usedTime":1})");
  }
}

TEST_F(ConnectionReportersTest, WrapsTheTimeUsedWhenTheStartIsLater) {
  EXPECT_EQ(SendConnectVagToMetric(1700000000001, 1), 0);
  ExpectStep("1700000000000",
             R"({"stepName":"FirstPack","source":"zelviewer","parentStepName":"Connect",)"
             R"("isSuccess":1,"startTime":1700000000001,"endTime":1700000000000,)"
             R"("usedTime":18446744073709551615})");
}

TEST_F(ConnectionReportersTest, ReportsStartsFromEndToEndOfTheClock) {
  EXPECT_EQ(SendConnectVagToMetric(0, 1), 0);
  ExpectStep("1700000000000",
             R"({"stepName":"FirstPack","source":"zelviewer","parentStepName":"Connect",)"
             R"("isSuccess":1,"startTime":0,"endTime":1700000000000,"usedTime":1700000000000})");
  FakePlatform::Reset();
  EXPECT_EQ(SendConnectVagToMetric(ULONG_MAX, 1), 0);
  ExpectStep("1700000000000",
             R"({"stepName":"FirstPack","source":"zelviewer","parentStepName":"Connect",)"
             R"("isSuccess":1,"startTime":18446744073709551615,"endTime":1700000000000,)"
             R"("usedTime":1700000000001})");
}

// The operation -----------------------------------------------------------------------------------

TEST_F(ConnectionReportersTest, ReportsAnOperationWithoutArgumentsUntilItIsRegistered) {
  EXPECT_EQ(SendConnectVagToCommonMetric("a", "b", true), 0);
  ExpectOperation("");
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
  EXPECT_TRUE(CatalogueIsUnchanged());
}

TEST_F(ConnectionReportersTest, ReportsARegisteredOperationWithItsArguments) {
  RegisterOperation();
  EXPECT_EQ(SendConnectVagToCommonMetric("gateway", "10.0.0.1", true), 0);
  ExpectOperation(R"(,"args":{"optName":"尝试连接vag","optType":"自动流程",)"
                  R"("optPosition":"ZELVIEWER","optState":"success",)"
                  R"("optDesc":"gateway:10.0.0.1"})");
}

TEST_F(ConnectionReportersTest, NamesTheOperationInUtf8) {
  RegisterOperation();
  EXPECT_EQ(SendConnectVagToCommonMetric("a", "b", true), 0);
  ExpectOperation(
      ",\"args\":{\"optName\":\"\xE5\xB0\x9D\xE8\xAF\x95\xE8\xBF\x9E\xE6\x8E\xA5\x76\x61\x67\","
      "\"optType\":\"\xE8\x87\xAA\xE5\x8A\xA8\xE6\xB5\x81\xE7\xA8\x8B\","
      "\"optPosition\":\"ZELVIEWER\",\"optState\":\"success\",\"optDesc\":\"a:b\"}");
}

TEST_F(ConnectionReportersTest, DescribesAFailedOperationAlsoWithEmptyTexts) {
  struct Case {
    std::string first;
    std::string second;
    std::string description;
  };
  RegisterOperation();
  for (const Case& texts : {Case{"a", "", "a:"},
                            {"", "b", ":b"},
                            {"", "", ":"},
                            {"a:b", ":", "a:b::"},
                            {"%s%n", "\"\n\xFF", "%s%n:\\\"\\n\uFFFD"}}) {
    FakePlatform::Reset();
    EXPECT_EQ(SendConnectVagToCommonMetric(texts.first, texts.second, false), 0);
    ExpectOperation(R"(,"args":{"optName":"尝试连接vag","optType":"自动流程",)"
                    R"("optPosition":"ZELVIEWER","optState":"fail","optDesc":")" +
                    texts.description + "\"}");
  }
}

TEST_F(ConnectionReportersTest, LeavesTheDescribingTextsAsTheyAre) {
  const std::string first = "first";
  const std::string second = "second";
  SendConnectVagToCommonMetric(first, second, true);
  EXPECT_EQ(first, "first");
  EXPECT_EQ(second, "second");
}

// Failures ----------------------------------------------------------------------------------------

TEST_F(ConnectionReportersTest, PassOnTheFailureOfTheSubmission) {
  FakePlatform::FailCopy(1);
  EXPECT_EQ(SendBizboxInsToMetric(), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
  FakePlatform::Reset();
  FakePlatform::FailCopy(1);
  EXPECT_EQ(SendConnectVagToMetric(1, 0), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
  FakePlatform::Reset();
  FakePlatform::FailCopy(1);
  EXPECT_EQ(SendConnectVagToCommonMetric("a", "b", true), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
}

// All but the description takes 115 bytes of the payload, its colon included.
TEST_F(ConnectionReportersTest, ReportsADescriptionUntilThePayloadHas65535Bytes) {
  EXPECT_EQ(SendConnectVagToCommonMetric(std::string(65535 - 115, 'd'), "", true), 0);
  ExpectOperation("");
  FakePlatform::Reset();
  EXPECT_EQ(SendConnectVagToCommonMetric(std::string(65536 - 115, 'd'), "", true), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
}

TEST_F(ConnectionReportersTest, LogsTheLengthOfALongerPayload) {
  EXPECT_EQ(SendConnectVagToCommonMetric(std::string(65537 - 115, 'd'), "", true), -10000);
  ExpectOnlyLogged(LoggedInvalidLength("StringFmtMetricsMsgToString", "65537"),
                   LoggedSubmissionFailure());
}

}  // namespace
