// The file lies in the working directory. A product would put its own directory in front of the
// name: it must be the same one for all processes of a chain.

#include "VFileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

/// How long a step may be held up by another process, which may have been stopped for good.
constexpr std::chrono::milliseconds kLongestWait(100);

/// flock excludes threads as well as processes, as every lock has a descriptor of its own.
bool LockInTime(int descriptor, int operation) {
  const Clock::time_point deadline = Clock::now() + kLongestWait;
  while (flock(descriptor, operation | LOCK_NB) != 0) {
    if (Clock::now() >= deadline) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

}  // namespace

int VFileLock::Read(char* buffer, int length) {
  return static_cast<int>(pread(descriptor_, buffer, static_cast<std::size_t>(length), 0));
}

int VFileLock::Write(const char* data, int length) {
  // Overwritten first and cut then: a process that is killed between the two leaves no empty file.
  const ssize_t written = pwrite(descriptor_, data, static_cast<std::size_t>(length), 0);
  if (written == length && ftruncate(descriptor_, length) != 0) {
    return -1;
  }
  return static_cast<int>(written);
}

bool VFileLockGuard::LockShared() { return Lock(LOCK_SH); }

bool VFileLockGuard::LockExclusive() { return Lock(LOCK_EX); }

bool VFileLockGuard::Lock(int operation) {
  const int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  const int descriptor = open(file_.name_.c_str(), flags, 0600);
  if (descriptor < 0) {
    return false;
  }
  if (!LockInTime(descriptor, operation)) {
    close(descriptor);
    return false;
  }
  file_.descriptor_ = descriptor;
  return true;
}

VFileLockGuard::~VFileLockGuard() {
  if (file_.descriptor_ >= 0) {
    close(file_.descriptor_);  // Which gives the lock back.
    file_.descriptor_ = -1;
  }
}
