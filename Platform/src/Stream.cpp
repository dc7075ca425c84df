#include "Stream.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "Uninterrupted.h"

Stream::Stream(int descriptor, Deadline& deadline) : descriptor_(descriptor) {
  char path[32];
  std::snprintf(path, sizeof path, "/proc/self/fd/%d", descriptor);
  own_ = Uninterrupted(
      deadline, [&path] { return open(path, O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); });
}

Stream::~Stream() {
  if (own_ >= 0) {
    close(own_);
  }
}

bool Stream::WaitWritable(Deadline& deadline) const {
  pollfd request = {own_ >= 0 ? own_ : descriptor_, POLLOUT, 0};
  int ready = 0;
  do {
    ready = poll(&request, 1, static_cast<int>(deadline.MillisecondsLeft()));
  } while (ready < 0 && errno == EINTR && !deadline.Passed());
  return ready > 0;
}

ssize_t Stream::Write(const void* data, std::size_t size) const {
  if (own_ >= 0) {
    return write(own_, data, size);
  }
  // A socket cannot be opened. Beside it only what the process may not open any more is left, and
  // may make it wait.
  const ssize_t sent = send(descriptor_, data, size, MSG_DONTWAIT | MSG_NOSIGNAL);
  return sent < 0 && errno == ENOTSOCK ? write(descriptor_, data, size) : sent;
}
