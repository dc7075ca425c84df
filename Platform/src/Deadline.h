/// A moment by which something must have happened.
#ifndef PLATFORM_DEADLINE_H_
#define PLATFORM_DEADLINE_H_

#include <algorithm>
#include <ctime>

/// How long a host is kept waiting at most for one line, one lock or one read: a stopped process or
/// a reader that does not read must not freeze the others.
constexpr long kLongestWaitMilliseconds = 100;

class Deadline {
 public:
  explicit Deadline(long milliseconds) : end_(Milliseconds(CLOCK_MONOTONIC) + milliseconds) {}

  bool Passed() const { return MillisecondsLeft() == 0; }
  long MillisecondsLeft() const { return std::max(end_ - Milliseconds(CLOCK_MONOTONIC), 0L); }

  /// The reading of a clock.
  static long Milliseconds(clockid_t clock) {
    timespec now;
    clock_gettime(clock, &now);
    return now.tv_sec * 1000 + now.tv_nsec / 1'000'000;
  }

 private:
  long end_;
};

#endif  // PLATFORM_DEADLINE_H_
