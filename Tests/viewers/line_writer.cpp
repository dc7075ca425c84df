// A host that writes metrics to a file until its standard input ends: about a line a millisecond,
// numbered, now and then as long as lines get. Then it says how many there were.
// usage: line_writer METRICS-FILE NAME

#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr int kWorthATrace = 10;
/// With it a line has about 64 KB, none of it to be shortened.
constexpr int kLongText = 64'000;
/// A payload that holds what loggers like to change: escapes, bytes above 127, blanks, percent.
constexpr char kDelicate[] = R"("note":" 尝试\n\"%s\"\\ #012\u007f ")";

int TextLength(int number) { return number % 250 == 249 ? kLongText : 20 + number * 37 % 700; }

bool WriteEvent(const char* name, int number) {
  const std::string text(static_cast<std::size_t>(TextLength(number)),
                         static_cast<char>('a' + number % 26));
  const std::string payload = "{\"writer\":\"" + std::string(name) +
                              "\",\"number\":" + std::to_string(number) + "," + kDelicate +
                              ",\"text\":\"" + text + "\"}";
  return SendStringDataToMetric("line_written", "writer", payload.data(),
                                static_cast<int>(payload.size()),
                                VMETRICS_HEADER_INDEX_FRAMEWORK) == VMETRICS_OK;
}

bool TraceStep(const char* name, int number) {
  const std::string step = "number " + std::to_string(number);
  return VMetrics::InsertRecord(0, name, "WRITER", step.c_str(), "", 0) == VMETRICS_OK &&
         VMetrics::InsertRecord(1, name, "WRITER", step.c_str(), "ParentSpanId", 0) == VMETRICS_OK;
}

bool WriteLine(const char* name, int number) {
  return number % kWorthATrace == 0 ? TraceStep(name, number) : WriteEvent(name, number);
}

/// Waits a millisecond for standard input to end.
bool MayGoOn() {
  pollfd input = {STDIN_FILENO, POLLIN, 0};
  char byte;
  return poll(&input, 1, 1) == 0 || read(STDIN_FILENO, &byte, 1) > 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 || !VPlatformConfig::SetMetricsFile(argv[1])) {
    std::perror("line_writer: METRICS-FILE NAME");
    return 2;
  }
  char definition[] = "line_written;json;lineWritten;0";
  VMetrics::RegisterMetricsStringDataType(definition);
  int number = 0;
  while (MayGoOn()) {
    if (!WriteLine(argv[2], number++)) {
      return 1;
    }
  }
  std::printf("%d\n", number);
  return 0;
}
