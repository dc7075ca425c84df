#include <gmock/gmock.h>

#include <string>
#include <thread>
#include <vector>

#include "TestKitTest.h"
#include "VLogger.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

class RecordTest : public TestKitTest {};

TEST_F(RecordTest, LinesAreKeptAsTheyWereWritten) {
  VLogger::GetInstance().Metrics("%s", "first");
  VLogger::GetInstance().Metrics("%s", "second");
  EXPECT_THAT(TestKit::MetricsLines(), ElementsAre("first", "second"));
}

TEST_F(RecordTest, LogLineTellsItsParts) {
  VLogger::GetInstance().Log("unit", 12, "Function", " ", "", 3, "%d items", 4);
  const std::vector<TestKit::LogLine> lines = TestKit::LogLines();
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_EQ(lines[0].level, 3);
  EXPECT_EQ(lines[0].message, "4 items");
  EXPECT_EQ(lines[0].function, "Function");
  EXPECT_EQ(lines[0].file, "unit");
  EXPECT_EQ(lines[0].line, 12);
}

TEST_F(RecordTest, MetricTellsItsParts) {
  TestKit::SetTick(5);
  Report(R"({"items": 3, "total": 41.50, "currency": "EUR"})");
  const std::vector<TestKit::Metric> metrics = TestKit::Metrics();
  ASSERT_THAT(metrics, SizeIs(1));
  EXPECT_EQ(metrics[0].line,
            R"({"eventId":"nox_user_connect","timestamp":5,"terminalId":"0","type":"0",)"
            R"("transactionId":"","businessType":"","serviceName":"shop","userName":"",)"
            R"("args":{"items":3,"total":41.50,"currency":"EUR"}})");
  EXPECT_EQ(metrics[0].eventId, "nox_user_connect");
  EXPECT_EQ(metrics[0].serviceName, "shop");
  EXPECT_EQ(metrics[0].members.at("timestamp"), "5");
  EXPECT_EQ(metrics[0].members.size(), 9U);
  EXPECT_THAT(metrics[0].args,
              ElementsAre(Pair("currency", "\"EUR\""), Pair("items", "3"), Pair("total", "41.50")));
}

TEST_F(RecordTest, MetricsAreToldApartByTheirEvent) {
  ASSERT_EQ(Register("order_placed;json;orderPlaced;0"), VMETRICS_OK);
  Report("{\"a\":1}");
  Report("{\"a\":2}", "order_placed");
  Report("{\"a\":3}");
  EXPECT_THAT(TestKit::Metrics(), SizeIs(3));
  const std::vector<TestKit::Metric> metrics = TestKit::Metrics("nox_user_connect");
  ASSERT_THAT(metrics, SizeIs(2));
  EXPECT_THAT(metrics[0].args, ElementsAre(Pair("a", "1")));
  EXPECT_THAT(metrics[1].args, ElementsAre(Pair("a", "3")));
  EXPECT_THAT(TestKit::Metrics("order"), IsEmpty());
}

TEST_F(RecordTest, LineThatIsNoJsonIsAMetricWithoutAnything) {
  VLogger::GetInstance().Metrics("%s", "order placed");
  const std::vector<TestKit::Metric> metrics = TestKit::Metrics();
  ASSERT_THAT(metrics, SizeIs(1));
  EXPECT_EQ(metrics[0].line, "order placed");
  EXPECT_EQ(metrics[0].eventId, "");
  EXPECT_THAT(metrics[0].members, IsEmpty());
}

TEST_F(RecordTest, StepTellsItsParts) {
  TestKit::ScriptTicks({1000, 1250, 1260});
  Trace("pl\"ace", 17);
  ASSERT_THAT(TestKit::Steps(), SizeIs(1));
  const TestKit::Step step = TestKit::Steps()[0];
  EXPECT_TRUE(step.found);
  EXPECT_EQ(step.line, TestKit::MetricsLines()[0]);
  EXPECT_EQ(step.eventId, "ORDER");
  EXPECT_EQ(step.transactionId, "t");
  EXPECT_EQ(step.stepName, "pl\"ace");
  EXPECT_EQ(step.spanId, TestKit::SpanFile());
  EXPECT_EQ(step.spanId.size(), 36U);
  EXPECT_EQ(step.parentSpanId, "");
  EXPECT_EQ(step.parentStep, "");
  EXPECT_EQ(step.errorCode, 17);
  EXPECT_FALSE(step.isSuccess);
  EXPECT_EQ(step.startTime, 1000U);
  EXPECT_EQ(step.endTime, 1250U);
  EXPECT_EQ(step.usedTime, 250U);
}

TEST_F(RecordTest, StepWithoutAnErrorIsASuccess) {
  Trace("place");
  EXPECT_TRUE(TestKit::FindStep("ORDER", "place").isSuccess);
}

TEST_F(RecordTest, StepsAndMetricsAreToldApart) {
  Trace("place");
  Report("{\"stepName\":\"place\"}");
  EXPECT_THAT(TestKit::Steps(), SizeIs(1));
  EXPECT_THAT(TestKit::Metrics(), SizeIs(1));
}

TEST_F(RecordTest, ParentIsFoundByItsIdentifier) {
  Trace("log in");
  Trace("place");
  const TestKit::Step child = TestKit::FindStep("ORDER", "place");
  EXPECT_EQ(child.parentStep, "log in");
  EXPECT_EQ(child.parentSpanId, TestKit::FindStep("ORDER", "log in").spanId);
}

TEST_F(RecordTest, OfSeveralStepsTheLastIsFound) {
  Trace("place", 1);
  Trace("place", 2);
  Trace("pay", 3);
  EXPECT_EQ(TestKit::FindStep("ORDER", "place").errorCode, 2);
}

TEST_F(RecordTest, StepIsFoundByItsEventAndItsNameOnly) {
  Trace("place");
  EXPECT_FALSE(TestKit::FindStep("ORDER", "pay").found);
  EXPECT_FALSE(TestKit::FindStep("LOGIN", "place").found);
  EXPECT_TRUE(TestKit::FindStep("ORDER", "place").found);
}

TEST_F(RecordTest, ThreadsReportWhileATestLooks) {
  constexpr int kThreads = 4;
  constexpr int kReports = 50;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([] {
      for (int k = 0; k < kReports; ++k) {
        Report("{\"a\":1}");
        VMetrics::ToString(1, nullptr);  // A warning.
        TestKit::Metrics();
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_THAT(TestKit::Metrics("nox_user_connect"), SizeIs(kThreads * kReports));
  EXPECT_THAT(TestKit::LogLines(), SizeIs(kThreads * kReports));
}

}  // namespace
