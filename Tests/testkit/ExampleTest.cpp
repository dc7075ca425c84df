// What the comments of VMetricsTestKit.h show (Tests/documents/blocks compares them).

#include <gtest/gtest.h>

#include <string>

#include "TestKitTest.h"
#include "order_shop.h"

namespace {

class ExampleTest : public TestKitTest {};

TEST_F(ExampleTest, ATestOfAComponent) {
  TestKit::Reset();
  OpenShop();                          // The component's own functions.
  TestKit::ScriptTicks({1000, 1250});  // The first step starts at 1000 ms, ends at 1250 ms.
  PlaceOrder("order-7", 3);
  EXPECT_EQ(TestKit::ExpectStep("ORDER", "check stock").UsedTime(250).Failure(), "");
  EXPECT_EQ(TestKit::ExpectMetric("order_placed").Arg("items", "3").Failure(), "");
}

TEST_F(ExampleTest, AStep) {
  TestKit::ScriptTicks({1000, 1000, 1000, 1000, 1250});
  Trace("log in");
  Trace("place");
  std::string identifier = TestKit::FindStep("ORDER", "place").spanId;
  EXPECT_EQ(identifier, TestKit::SpanFile());
  EXPECT_EQ(TestKit::ExpectStep("ORDER", "place").UsedTime(250).ParentStep("log in").Failure(), "");
}

TEST_F(ExampleTest, AMetric) {
  OpenShop();
  PlaceOrder("order-7", 3);
  EXPECT_EQ(TestKit::ExpectMetric("order_placed").ServiceName("shop").Arg("items", "3").Failure(),
            "");
}

TEST_F(ExampleTest, ADiagnostic) {
  VMetrics::InsertRecord(0, nullptr, "ORDER", "place", "ParentSpanId", 0);
  EXPECT_EQ(TestKit::ExpectLogLine(1, "transactionId is nullptr"), "");
}

}  // namespace
