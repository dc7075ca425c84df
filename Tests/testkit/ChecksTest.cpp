#include <gtest/gtest.h>

#include <string>

#include "TestKitTest.h"
#include "VLogger.h"

namespace {

using TestKit::ExpectMetric;
using TestKit::ExpectStep;

class ChecksTest : public TestKitTest {};

class StepCheckTest : public TestKitTest {
 protected:
  StepCheckTest() {
    TestKit::ScriptTicks({1000, 1000, 1000, 1000, 1250});
    Trace("log in");
    Trace("place", 5);
  }
};

TEST_F(StepCheckTest, NothingIsWrong) {
  EXPECT_EQ(ExpectStep("ORDER", "log in").Succeeded().Failure(), "");
  EXPECT_EQ(ExpectStep("ORDER", "place")
                .ErrorCode(5)
                .UsedTime(250)
                .TransactionId("t")
                .ParentStep("log in")
                .Failure(),
            "");
}

TEST_F(StepCheckTest, ErrorCodeIsWrong) {
  EXPECT_EQ(ExpectStep("ORDER", "place").ErrorCode(6).Failure(),
            "step \"place\" of event \"ORDER\": error code is 5, wanted 6");
}

TEST_F(StepCheckTest, SuccessIsAnErrorCode) {
  EXPECT_EQ(ExpectStep("ORDER", "place").Succeeded().Failure(),
            "step \"place\" of event \"ORDER\": error code is 5, wanted 0");
}

TEST_F(StepCheckTest, UsedTimeIsWrong) {
  EXPECT_EQ(ExpectStep("ORDER", "place").UsedTime(251).Failure(),
            "step \"place\" of event \"ORDER\": used time is 250, wanted 251");
}

TEST_F(StepCheckTest, TransactionIsWrong) {
  EXPECT_EQ(ExpectStep("ORDER", "place").TransactionId("u").Failure(),
            "step \"place\" of event \"ORDER\": transaction ID is \"t\", wanted \"u\"");
}

TEST_F(StepCheckTest, ParentIsWrong) {
  EXPECT_EQ(ExpectStep("ORDER", "place").ParentStep("pay").Failure(),
            "step \"place\" of event \"ORDER\": parent step is \"log in\", wanted \"pay\"");
  EXPECT_EQ(ExpectStep("ORDER", "log in").ParentStep("").Failure(), "");
}

TEST_F(StepCheckTest, FirstFailureIsTold) {
  EXPECT_EQ(ExpectStep("ORDER", "place").UsedTime(1).ErrorCode(6).Failure(),
            "step \"place\" of event \"ORDER\": used time is 250, wanted 1");
}

TEST_F(StepCheckTest, MissingStepShowsWhatWasWritten) {
  EXPECT_EQ(ExpectStep("ORDER", "pay").ErrorCode(6).Failure(),
            "no step \"pay\" of event \"ORDER\" has ended; written were:\n  " +
                TestKit::MetricsLines()[0] + "\n  " + TestKit::MetricsLines()[1]);
}

TEST_F(StepCheckTest, StepIsToBeMissing) {
  EXPECT_EQ(TestKit::ExpectNoStep("ORDER", "pay"), "");
  EXPECT_EQ(TestKit::ExpectNoStep("ORDER", "log in"),
            "step \"log in\" of event \"ORDER\" has ended:\n  " + TestKit::MetricsLines()[0]);
}

TEST_F(ChecksTest, MissingStepWithoutAnyLine) {
  Start("place");
  EXPECT_EQ(ExpectStep("ORDER", "place").Failure(),
            "no step \"place\" of event \"ORDER\" has ended; no metrics line was written");
}

TEST_F(ChecksTest, MetricIsAsWanted) {
  Report("{\"items\":2}");
  Report("{\"items\":3,\"currency\":\"EUR\"}");
  EXPECT_EQ(ExpectMetric("nox_user_connect")
                .ServiceName("shop")
                .Arg("items", "3")
                .Arg("currency", "\"EUR\"")
                .Times(2)
                .Failure(),
            "");
}

TEST_F(ChecksTest, ServiceIsWrong) {
  Report("{}");
  EXPECT_EQ(ExpectMetric("nox_user_connect").ServiceName("store").Failure(),
            "metric \"nox_user_connect\": service name is \"shop\", wanted \"store\"");
}

TEST_F(ChecksTest, ArgumentIsWrong) {
  Report("{\"items\":3}");
  EXPECT_EQ(ExpectMetric("nox_user_connect").Arg("items", "4").Failure(),
            "metric \"nox_user_connect\": args member \"items\" is 3, wanted 4");
}

TEST_F(ChecksTest, ArgumentIsMissing) {
  Report("{\"items\":3}");
  EXPECT_EQ(ExpectMetric("nox_user_connect").Arg("total", "4").Arg("items", "1").Failure(),
            "metric \"nox_user_connect\": args member \"total\" is missing, wanted 4");
}

TEST_F(ChecksTest, MetricWasReportedAnotherNumberOfTimes) {
  Report("{}");
  EXPECT_EQ(ExpectMetric("nox_user_connect").Times(2).Failure(),
            "metric \"nox_user_connect\": number of reports is 1, wanted 2");
}

TEST_F(ChecksTest, MetricIsToBeMissing) {
  EXPECT_EQ(ExpectMetric("nox_user_connect").Times(0).Failure(), "");
  EXPECT_EQ(ExpectMetric("nox_user_connect").Times(1).Failure(),
            "no metric \"nox_user_connect\" was reported; no metrics line was written");
  Report("{}");
  EXPECT_EQ(ExpectMetric("nox_user_connect").Times(0).Failure(),
            "metric \"nox_user_connect\": number of reports is 1, wanted 0");
}

TEST_F(ChecksTest, MetricIsMissing) {
  EXPECT_EQ(ExpectMetric("order_placed").Failure(),
            "no metric \"order_placed\" was reported; no metrics line was written");
}

TEST_F(ChecksTest, NoMetricsLines) {
  EXPECT_EQ(TestKit::ExpectNoMetricsLines(), "");
  VLogger::GetInstance().Metrics("%s", "a");
  VLogger::GetInstance().Metrics("%s", "b");
  EXPECT_EQ(TestKit::ExpectNoMetricsLines(), "metrics lines were written:\n  a\n  b");
}

TEST_F(ChecksTest, LogLineOfALevelAndAMessage) {
  VLogger::GetInstance().Log("unit", 1, "Work", " ", "", 2, "late");
  EXPECT_EQ(TestKit::ExpectLogLine(2, "late"), "");
  EXPECT_EQ(TestKit::ExpectLogLine(1, "late"),
            "no line of level 1 says \"late\"; logged were:\n  level 2, Work: late");
  EXPECT_EQ(TestKit::ExpectLogLine(2, "lat"),
            "no line of level 2 says \"lat\"; logged were:\n  level 2, Work: late");
}

TEST_F(ChecksTest, LogLineIsMissing) {
  EXPECT_EQ(TestKit::ExpectLogLine(1, "late"),
            "no line of level 1 says \"late\"; nothing was logged");
}

TEST_F(ChecksTest, NoLogLinesUpToALevel) {
  VLogger::GetInstance().Log("unit", 1, "Work", " ", "", 3, "begun");
  EXPECT_EQ(TestKit::ExpectNoLogLines(), "");
  EXPECT_EQ(TestKit::ExpectNoLogLines(3), "log lines were written:\n  level 3, Work: begun");
  VLogger::GetInstance().Log("unit", 1, "Work", " ", "", 2, "late");
  EXPECT_EQ(TestKit::ExpectNoLogLines(), "log lines were written:\n  level 2, Work: late");
  EXPECT_EQ(TestKit::ExpectNoLogLines(1), "");
}

}  // namespace
