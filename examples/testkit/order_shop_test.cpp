// The component's test, without any test framework.

#include "order_shop.h"

#include <VMetricsTestKit.h>

#include <cstdio>
#include <string>

namespace {

int failures = 0;

/// Tells what is wrong, if anything is.
void Check(const std::string& failure) {
  if (!failure.empty()) {
    std::fprintf(stderr, "%s\n", failure.c_str());
    ++failures;
  }
}

void AnOrderIsTracedAndReported() {
  TestKit::Reset();
  OpenShop();
  // Read at both ends of each step, once more for its line, and for the metric between them.
  TestKit::ScriptTicks({1000, 1200, 1200, 1300, 1400, 1550, 1550});

  PlaceOrder("order-7", 3);

  Check(TestKit::ExpectStep("ORDER", "check stock").Succeeded().UsedTime(200).Failure());
  Check(TestKit::ExpectStep("ORDER", "place")
            .TransactionId("order-7")
            .Succeeded()
            .UsedTime(250)
            .ParentStep("check stock")
            .Failure());
  Check(TestKit::ExpectMetric("order_placed")
            .ServiceName("shop")
            .Arg("items", "3")
            .Arg("currency", "\"EUR\"")
            .Times(1)
            .Failure());
  Check(TestKit::ExpectNoLogLines());
}

void AnEmptyOrderIsAFailedStepAndNoMetric() {
  TestKit::Reset();
  OpenShop();

  PlaceOrder("order-8", 0);

  Check(TestKit::ExpectStep("ORDER", "check stock").ErrorCode(17).Failure());
  Check(TestKit::ExpectNoStep("ORDER", "place"));
  Check(TestKit::ExpectMetric("order_placed").Times(0).Failure());
}

void AStepOfAnotherProcessIsTheParent() {
  TestKit::Reset();
  OpenShop();
  TestKit::SetSpanFile("3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4");

  PlaceOrder("order-9", 1);

  const TestKit::Step first = TestKit::FindStep("ORDER", "check stock");
  Check(first.parentSpanId == "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4" ? "" : "no parent");
  const TestKit::Step last = TestKit::FindStep("ORDER", "place");
  Check(TestKit::SpanFile() == last.spanId ? "" : "the next process would not find the last step");
}

void OrdersArePlacedWhileTheSpanFileCannotBeHad() {
  TestKit::Reset();
  OpenShop();
  TestKit::RefuseAllLocks();

  PlaceOrder("order-10", 1);

  Check(TestKit::ExpectStep("ORDER", "place").Succeeded().ParentStep("").Failure());
}

}  // namespace

int main() {
  AnOrderIsTracedAndReported();
  AnEmptyOrderIsAFailedStepAndNoMetric();
  AStepOfAnotherProcessIsTheParent();
  OrdersArePlacedWhileTheSpanFileCannotBeHad();
  return failures == 0 ? 0 : 1;
}
