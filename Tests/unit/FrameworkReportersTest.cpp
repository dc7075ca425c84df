#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "FrameworkTest.h"
#include "GuardedBytes.h"
#include "LoggedLine.h"
#include "Records.h"
#include "VIpc.h"

namespace {

class FrameworkReportersTest : public FrameworkTest {
 protected:
  /// The one line of an event of the framework, which has no service name.
  static void ExpectEvent(const std::string& eventId, const std::string& type,
                          const std::string& arguments) {
    ExpectOnlyEmitted(R"({"eventId":")" + eventId +
                      R"(","timestamp":1700000000000,"terminalId":"0","type":")" + type +
                      R"(","transactionId":"","businessType":"","serviceName":"",)"
                      R"("userName":"","args":)" +
                      arguments + "}");
  }

  static void ExpectSlow(const std::string& arguments) {
    ExpectEvent("VEVENT_MSG_PROCESS_SLOW", "0", arguments);
  }

  static void ExpectChange(const std::string& arguments) {
    ExpectEvent("VEVENT_MSG_TRANS_CHANGE", "3", arguments);
  }
};

// A slow module -----------------------------------------------------------------------------------

TEST_F(FrameworkReportersTest, ReportsASlowModule) {
  const GuardedBytes message(Message(11, 22, 33));
  EXPECT_EQ(SendModuleProcessTimeoutMetric("usb", "attach", message.As<VMessage>(), 44), 0);
  ExpectOnlyEmitted(
      R"({"eventId":"VEVENT_MSG_PROCESS_SLOW","timestamp":1700000000000,"terminalId":"0",)"
      R"("type":"0","transactionId":"","businessType":"","serviceName":"","userName":"",)"
      R"("args":{"moduleName":"usb","name":"attach","msgSrcModuleId":11,)"
      R"("msgDstModuleId":22,"msgType":33,"cost":44}})");
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
}

TEST_F(FrameworkReportersTest, WritesTheMessagesNumbersAsSignedAndTheCostAsUnsigned) {
  const GuardedBytes message(Message(INT_MIN, -1, INT_MAX));
  EXPECT_EQ(SendModuleProcessTimeoutMetric("m", "n", message.As<VMessage>(), 4294967295), 0);
  ExpectSlow(R"({"moduleName":"m","name":"n","msgSrcModuleId":-2147483648,"msgDstModuleId":-1,)"
             R"("msgType":2147483647,"cost":4294967295})");
  FakePlatform::Reset();
  EXPECT_EQ(SendModuleProcessTimeoutMetric("m", "n", message.As<VMessage>(), 2147483648), 0);
  ExpectSlow(R"({"moduleName":"m","name":"n","msgSrcModuleId":-2147483648,"msgDstModuleId":-1,)"
             R"("msgType":2147483647,"cost":2147483648})");
}

TEST_F(FrameworkReportersTest, WritesNoCostAndEmptyNames) {
  const GuardedBytes message(Message(0, 0, 0));
  EXPECT_EQ(SendModuleProcessTimeoutMetric("", "", message.As<VMessage>(), 0), 0);
  ExpectSlow(R"({"moduleName":"","name":"","msgSrcModuleId":0,"msgDstModuleId":0,"msgType":0,)"
             R"("cost":0})");
}

TEST_F(FrameworkReportersTest, EscapesTheNamesOfASlowModule) {
  const GuardedBytes message(Message(1, 2, 3));
  EXPECT_EQ(SendModuleProcessTimeoutMetric("%s\"\n", "\xFF%n自", message.As<VMessage>(), 4), 0);
  ExpectSlow(
      "{\"moduleName\":\"%s\\\"\\n\",\"name\":\"\uFFFD%n自\",\"msgSrcModuleId\":1,"
      "\"msgDstModuleId\":2,\"msgType\":3,\"cost\":4}");
}

TEST_F(FrameworkReportersTest, ReadsAMessageAtAnyAddress) {
  const std::string bytes = Message(1, 2, 3);
  alignas(8) char place[40];
  for (std::size_t offset = 0; offset < 8; ++offset) {
    FakePlatform::Reset();
    bytes.copy(place + offset, bytes.size());
    auto* const message = reinterpret_cast<VMessage*>(place + offset);
    EXPECT_EQ(SendModuleProcessTimeoutMetric("m", "n", message, 4), 0);
    ExpectSlow(R"({"moduleName":"m","name":"n","msgSrcModuleId":1,"msgDstModuleId":2,)"
               R"("msgType":3,"cost":4})");
    EXPECT_EQ(std::string(place + offset, bytes.size()), bytes);
  }
}

TEST_F(FrameworkReportersTest, RefusesANullMessage) {
  EXPECT_EQ(SendModuleProcessTimeoutMetric("m", "n", nullptr, 4), -10000);
  ExpectOnlyLogged(
      LoggedLine(kVUpMetricsUnit, "SendModuleProcessTimeoutMetric", 1, "Message NULL"));
  EXPECT_EQ(FakePlatform::TicksRead(), 0);
}

// A change of the transport -----------------------------------------------------------------------

TEST_F(FrameworkReportersTest, ReportsAChangeOfTheTransport) {
  EXPECT_EQ(SendTransChangeToMetrics("packet loss", -7, 120), 0);
  ExpectOnlyEmitted(
      R"({"eventId":"VEVENT_MSG_TRANS_CHANGE","timestamp":1700000000000,"terminalId":"0",)"
      R"("type":"3","transactionId":"","businessType":"","serviceName":"","userName":"",)"
      R"("args":{"transChangeReason":"packet loss","errorCode":-7,"averageLatancy":120}})");
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
}

TEST_F(FrameworkReportersTest, ReportsAChangeForNoReason) {
  EXPECT_EQ(SendTransChangeToMetrics("", 0, 0), 0);
  ExpectChange(R"({"transChangeReason":"","errorCode":0,"averageLatancy":0})");
}

TEST_F(FrameworkReportersTest, ReportsAnyNumbersOfAChange) {
  EXPECT_EQ(SendTransChangeToMetrics("%s%n", INT_MIN, INT_MAX), 0);
  ExpectChange(R"({"transChangeReason":"%s%n","errorCode":-2147483648,)"
               R"("averageLatancy":2147483647})");
  FakePlatform::Reset();
  EXPECT_EQ(SendTransChangeToMetrics("\n", INT_MAX, INT_MIN), 0);
  ExpectChange(R"({"transChangeReason":"\n","errorCode":2147483647,)"
               R"("averageLatancy":-2147483648})");
}

// All but the reason takes 57 bytes of the payload.
TEST_F(FrameworkReportersTest, ReportsAReasonUntilThePayloadHas65535Bytes) {
  const std::string longest(65535 - 57, 'r');
  EXPECT_EQ(SendTransChangeToMetrics(longest, 0, 0), 0);
  ExpectChange(R"({"transChangeReason":")" + longest + R"(","errorCode":0,"averageLatancy":0})");
  FakePlatform::Reset();
  EXPECT_EQ(SendTransChangeToMetrics(longest + "r", 0, 0), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
}

TEST_F(FrameworkReportersTest, LogsTheLengthOfALongerPayload) {
  EXPECT_EQ(SendTransChangeToMetrics(std::string(65537 - 57, 'r'), 0, 0), -10000);
  ExpectOnlyLogged(LoggedInvalidLength("StringFmtMetricsMsgToString", "65537"),
                   LoggedSubmissionFailure());
}

// Failures ----------------------------------------------------------------------------------------

TEST_F(FrameworkReportersTest, PassOnTheFailureOfTheSubmission) {
  const GuardedBytes message(Message(1, 2, 3));
  FakePlatform::FailCopy(1);
  EXPECT_EQ(SendModuleProcessTimeoutMetric("m", "n", message.As<VMessage>(), 4), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
  FakePlatform::Reset();
  FakePlatform::FailCopy(1);
  EXPECT_EQ(SendTransChangeToMetrics("r", 0, 0), -10000);
  ExpectOnlyLogged(LoggedSubmissionFailure());
}

}  // namespace
