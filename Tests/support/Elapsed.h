/// How long a call takes.
#ifndef ELAPSED_H_
#define ELAPSED_H_

#include <algorithm>
#include <chrono>
#include <iterator>

/// The median of five calls in milliseconds: what the call needs, and not what a busy machine adds
/// to one of them.
template <typename Call>
long MedianMilliseconds(Call call) {
  long times[5];
  for (long& time : times) {
    const auto begin = std::chrono::steady_clock::now();
    call();
    const auto elapsed = std::chrono::steady_clock::now() - begin;
    time = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
  }
  std::sort(std::begin(times), std::end(times));
  return times[2];
}

#endif  // ELAPSED_H_
