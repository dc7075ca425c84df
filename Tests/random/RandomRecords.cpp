// Renders records at random and compares each line with the oracle's, letter by letter, and with
// what two parsers that are none of ours read from it, field by field.
// usage: random_records COUNT [SEED]

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "FakePlatform.h"
#include "IndependentJson.h"
#include "RandomMetrics.h"
#include "RecordGenerator.h"
#include "RecordModel.h"

namespace {

struct Counts {
  long lines = 0;
  long refused = 0;
  long withArguments = 0;
  long bytes = 0;
};

std::string Rendered(const GeneratedRecord& record) {
  const char* const bytes = record.bytes.data();
  return record.numeric
             ? VMetrics::GetBaseMetricsString(reinterpret_cast<const VMetricsData*>(bytes))
             : VMetrics::GetStringBaseMetricsString(
                   reinterpret_cast<const VMetricsDataString*>(bytes));
}

/// What is wrong with the line; empty if nothing is.
std::string Difference(const std::string& line, const std::optional<Oracle::Object>& expected) {
  if (line != Oracle::Line(expected)) {
    return "differs from " + Oracle::Line(expected);
  }
  if (!expected.has_value()) {
    return "";
  }
  if (line.find('\n') != std::string::npos) {
    return "more than one line";
  }
  const std::string rapid = IndependentJson::RapidDifference(line, *expected);
  if (!rapid.empty()) {
    return "RapidJSON reads something else: " + rapid;
  }
  const std::string nlohmann = IndependentJson::NlohmannDifference(line, *expected);
  return nlohmann.empty() ? "" : "nlohmann reads something else: " + nlohmann;
}

void Count(const std::string& line, const std::optional<Oracle::Object>& expected, Counts& counts) {
  const bool refused = !expected.has_value();
  counts.lines += refused ? 0 : 1;
  counts.refused += refused ? 1 : 0;
  counts.withArguments += !refused && expected->back().key == "args" ? 1 : 0;
  counts.bytes += static_cast<long>(line.size());
}

/// Makes, renders and compares one record after another; false at the first difference.
bool Compare(long records, std::uint64_t seed, Counts& counts) {
  const Oracle::Metrics metrics = RandomMetrics();
  RecordGenerator generator(seed, metrics);
  FakePlatform::Reset();
  for (long number = 0; number < records; ++number) {
    const GeneratedRecord record = generator.Next();
    const std::uint64_t tick = generator.Tick();
    FakePlatform::ScriptTicks({tick});
    const std::string line = Rendered(record);
    const char* const bytes = record.bytes.data();
    const auto expected = record.numeric ? Oracle::NumericRecord(bytes, tick, metrics)
                                         : Oracle::StringRecord(bytes, tick, metrics);
    const std::string difference = Difference(line, expected);
    if (!difference.empty() || !FakePlatform::LogLines().empty()) {
      std::fprintf(stderr, "record %ld of seed %lu:\n%s\n%s\n", number, seed, line.c_str(),
                   difference.c_str());
      return false;
    }
    Count(line, expected, counts);
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s COUNT [SEED]\n", argv[0]);
    return 2;
  }
  Counts counts;
  if (!Compare(std::atol(argv[1]), argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1, counts)) {
    return 1;
  }
  std::printf("%ld lines as expected, %ld of them with args, %ld bytes; %ld records refused\n",
              counts.lines, counts.withArguments, counts.bytes, counts.refused);
  return counts.withArguments > 0 ? 0 : 1;
}
