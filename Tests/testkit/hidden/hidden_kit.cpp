// A program whose linker hides the test kit from the loader: each check says so, also those that
// want nothing to be there.

#include <cstdio>
#include <string>

#include "VMetrics.h"
#include "VMetricsTestKit.h"

namespace {

int failures = 0;

void CheckTells(const char* check, const std::string& failure) {
  if (failure != "the library does not use the test kit: see \"How it gets in\" of its page") {
    std::fprintf(stderr, "%s tells: %s\n", check, failure.c_str());
    ++failures;
  }
}

}  // namespace

int main() {
  TestKit::Reset();
  CheckTells("ExpectStep", TestKit::ExpectStep("ORDER", "place").Failure());
  CheckTells("ExpectNoStep", TestKit::ExpectNoStep("ORDER", "place"));
  CheckTells("ExpectMetric", TestKit::ExpectMetric("order_placed").Failure());
  CheckTells("Times(0)", TestKit::ExpectMetric("order_placed").Times(0).Failure());
  CheckTells("ExpectLogLine", TestKit::ExpectLogLine(1, "late"));
  CheckTells("ExpectNoLogLines", TestKit::ExpectNoLogLines());
  CheckTells("ExpectNoMetricsLines", TestKit::ExpectNoMetricsLines());
  return failures == 0 ? 0 : 1;
}
