/// Waiting for a process of one's own, but not for ever.
#ifndef BOUNDEDWAIT_H_
#define BOUNDEDWAIT_H_

#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

constexpr int kDidNotEnd = -1;

/// Waits for the child and returns its exit code, or minus the signal that ended it. One that does
/// not end in time is killed: kDidNotEnd.
inline int WaitFor(pid_t child, int milliseconds) {
  // As a system call: not every C library has the function.
  const int handle = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
  pollfd ended = {handle, POLLIN, 0};
  const bool inTime = poll(&ended, 1, milliseconds) == 1;
  close(handle);
  if (!inTime) {
    kill(child, SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (!inTime) {
    return kDidNotEnd;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

#endif  // BOUNDEDWAIT_H_
