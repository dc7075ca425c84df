// The bytes of the heap that a registered metric takes among 100,000 of them, what malloc adds to
// its blocks included: first with numeric IDs, then with event IDs. Names and event IDs are too
// long for a string's own room, as half of the built-in names are: a shorter one costs less.

#include <malloc.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "VMetrics.h"

namespace {

constexpr int kEntries = 100'000;
constexpr int kFirstNumber = 0x40000000;

std::vector<std::string> Definitions(const std::string& prefix, const std::string& rest) {
  std::vector<std::string> definitions;
  for (int i = 0; i < kEntries; ++i) {
    definitions.push_back(prefix + std::to_string(kFirstNumber + i) + rest);
  }
  return definitions;
}

std::size_t HeapInUse() {
  const struct mallinfo2 heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

bool Print(const char* kind, std::vector<std::string> definitions, int (*registerOne)(char*)) {
  const std::size_t before = HeapInUse();
  for (std::string& definition : definitions) {
    if (registerOne(definition.data()) != VMETRICS_OK) {
      return false;
    }
  }
  std::printf("%s\t%.0f\n", kind, static_cast<double>(HeapInUse() - before) / kEntries);
  return true;
}

}  // namespace

int main() {
  const bool registered =
      Print("numeric ID", Definitions("", ";uint64_t;displayRenderingDelay;0"),
            VMetrics::RegisterMetricsDataType) &&
      Print("event ID", Definitions("VEVENT_MSG_CHANGE_", ";json;transportChangeEvent;0"),
            VMetrics::RegisterMetricsStringDataType);
  return registered ? 0 : 1;
}
