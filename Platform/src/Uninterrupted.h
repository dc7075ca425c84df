/// System calls that a signal of the host's has interrupted.
#ifndef PLATFORM_UNINTERRUPTED_H_
#define PLATFORM_UNINTERRUPTED_H_

#include <cerrno>

#include "Deadline.h"

/// Calls `attempt` until it is not interrupted, or has been until the deadline.
template <typename Attempt>
auto Uninterrupted(Deadline& deadline, Attempt attempt) {
  auto result = attempt();
  while (result < 0 && errno == EINTR && !deadline.Passed()) {
    result = attempt();
  }
  return result;
}

/// The same, for as long as anybody should wait.
template <typename Attempt>
auto Uninterrupted(Attempt attempt) {
  Deadline deadline(kLongestWaitMilliseconds);
  return Uninterrupted(deadline, attempt);
}

#endif  // PLATFORM_UNINTERRUPTED_H_
