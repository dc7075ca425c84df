#include "stats/Series.h"

#include <algorithm>

namespace vmetrics {

void ErrorCodes::Add(std::optional<std::int64_t> code) {
  constexpr std::size_t kMostCodes = 1000;
  if (!code) {
    return;
  }
  const auto found = counts_.find(*code);
  if (found != counts_.end()) {
    ++found->second;
  } else if (counts_.size() < kMostCodes) {
    counts_.emplace(*code, 1);
  }
}

std::vector<ErrorCodes::Counted> ErrorCodes::MostFrequent(std::size_t most) const {
  std::vector<Counted> sorted;
  sorted.reserve(counts_.size());
  for (const auto& [code, count] : counts_) {
    sorted.push_back({code, count});
  }
  std::sort(sorted.begin(), sorted.end(), [](const Counted& a, const Counted& b) {
    return a.count != b.count ? a.count > b.count : a.code < b.code;
  });
  sorted.resize(std::min(most, sorted.size()));
  return sorted;
}

}  // namespace vmetrics
