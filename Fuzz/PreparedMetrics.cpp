#include "PreparedMetrics.h"

#include "VMetrics.h"

namespace {

/// In this order: the corpus chooses them by number.
const Oracle::Metric kPrepared[] = {{"string", "text", "0"},
                                    {"int", "number", "0"},
                                    {"uint64_t", "large", "0"},
                                    {"int64_t", "signed", "1"},
                                    {"double", "real", "0"},
                                    {"bool", "truth", "0"},
                                    {"enum", "choice", "0"},
                                    {"json", "foreign", "0"},
                                    {"unknown", "nothing", "0"},
                                    {"string", "\"\\\n%s%n\x7F\xFF\xE2\x82", "0"},
                                    {"int", "", "0"},
                                    {"int", "short"},
                                    {"int"},
                                    {}};
constexpr int kFirstId = 0x7FFF0001;

Oracle::Metrics Prepare() {
  Oracle::Metrics metrics = Oracle::BuiltInMetrics();
  int number = 0;
  for (const Oracle::Metric& metric : kPrepared) {
    const std::string event = "e" + std::to_string(number);
    VMetrics::GetMetricsMap()[kFirstId + number] = metric;
    VMetrics::GetMetricsStringMap()[event] = metric;
    metrics.numbered[kFirstId + number] = metric;
    metrics.named[event] = metric;
    ++number;
  }
  return metrics;
}

}  // namespace

const Oracle::Metrics& PreparedMetrics() {
  static const Oracle::Metrics metrics = Prepare();
  return metrics;
}

std::uint32_t ChosenId(Input& input) {
  const std::uint8_t choice = input.Byte();
  return choice < std::size(kPrepared) ? static_cast<std::uint32_t>(kFirstId + choice)
                                       : input.Word();
}

std::string ChosenEvent(Input& input) {
  const std::uint8_t choice = input.Byte();
  return choice < std::size(kPrepared) ? "e" + std::to_string(choice) : input.Text();
}
