/// Whether the contenders of a benchmark do the same work: their texts are compared before anything
/// is measured.
#ifndef BENCHMARKS_SAMETEXT_H_
#define BENCHMARKS_SAMETEXT_H_

#include <benchmark/benchmark.h>

#include <string>

/// A line without what differs from one call to the next: ticks, and what is drawn at random.
inline std::string Masked(std::string line) {
  for (const char* key :
       {"timestamp", "spanId", "parentSpanId", "startTime", "endTime", "usedTime"}) {
    const std::string head = "\"" + std::string(key) + "\":";
    const std::size_t at = line.find(head);
    if (at != std::string::npos) {
      const std::size_t begin = at + head.size();
      line.replace(begin, line.find_first_of(",}", begin) - begin, "#");
    }
  }
  return line;
}

/// Ends the benchmark unless `text` is what the library says, `ours`; false then.
inline bool ExpectSameText(benchmark::State& state, const std::string& text,
                           const std::string& ours) {
  const bool same = !text.empty() && Masked(text) == Masked(ours);
  if (!same) {
    state.SkipWithError(("another text than ours: " + text.substr(0, 500)).c_str());
  }
  return same;
}

#endif  // BENCHMARKS_SAMETEXT_H_
