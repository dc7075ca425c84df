/// How long a call takes.
#ifndef ELAPSED_H_
#define ELAPSED_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iterator>

/// How often a call is made whose time is taken.
constexpr int kTimedCalls = 5;

/// What a busy machine may add to one of them.
constexpr long kSlowestMilliseconds = 2'000;

template <typename Call>
long Milliseconds(Call call) {
  const auto begin = std::chrono::steady_clock::now();
  call();
  const auto elapsed = std::chrono::steady_clock::now() - begin;
  return std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
}

/// The median of some calls: what the call needs, and not what a busy machine adds to one of them.
/// Even the slowest comes to an end in time.
template <typename Call>
long MedianMilliseconds(Call call) {
  long times[kTimedCalls];
  for (long& time : times) {
    time = Milliseconds(call);
  }
  std::sort(std::begin(times), std::end(times));
  EXPECT_LT(times[kTimedCalls - 1], kSlowestMilliseconds);
  return times[kTimedCalls / 2];
}

#endif  // ELAPSED_H_
