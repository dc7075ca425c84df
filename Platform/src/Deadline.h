/// A moment by which something must have happened.
#ifndef PLATFORM_DEADLINE_H_
#define PLATFORM_DEADLINE_H_

#include <algorithm>
#include <ctime>

/// How long a host is kept waiting at most for one line, one lock or one read: a stopped process or
/// a reader that does not read must not freeze the others.
constexpr long kLongestWaitMilliseconds = 100;

/// Starts when it is first asked, so that what is not kept waiting does not even look at the clock.
class Deadline {
 public:
  explicit Deadline(long milliseconds) : allowed_(milliseconds) {}

  bool Passed() { return MillisecondsLeft() == 0; }

  long MillisecondsLeft() {
    const long now = Milliseconds(CLOCK_MONOTONIC);
    if (end_ == 0) {
      end_ = now + allowed_;
    }
    return std::max(end_ - now, 0L);
  }

  /// The reading of a clock.
  static long Milliseconds(clockid_t clock) {
    timespec now;
    clock_gettime(clock, &now);
    return now.tv_sec * 1000 + now.tv_nsec / 1'000'000;
  }

 private:
  long allowed_;
  long end_ = 0;
};

#endif  // PLATFORM_DEADLINE_H_
