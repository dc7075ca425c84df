// What a component does first: a metric of its own, rendered. In the oldest C++ that the header
// takes.
#include <VMetrics.h>

#include <cstdio>
#include <string>

int main() {
  char definition[] = "302645266;int;queueLength;0";
  if (VMetrics::RegisterMetricsDataType(definition) != VMETRICS_OK) {
    return 1;
  }
  const int length = 3;
  const std::string text = VMetrics::ToString(302645266, reinterpret_cast<const char*>(&length));
  return std::puts(text.c_str()) < 0 ? 1 : 0;
}
