#include "VFileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstring>
#include <ctime>

#include "Deadline.h"
#include "ErrnoKeeper.h"
#include "SignalGuard.h"
#include "Uninterrupted.h"
#include "VPlatformConfig.h"

namespace {

/// A lock is held for a few microseconds; the first waits are about as short as a sleep can be.
constexpr long kFirstPauseNanoseconds = 20'000;
constexpr long kLongestPauseNanoseconds = 1'000'000;

// Neither is an object with a destructor, so both serve until the last call of the process.
char lockDirectory[PATH_MAX] = "";
std::atomic<mode_t> lockFileMode{0600};

/// Where a lock file lies: its path, or the empty one when that would be longer than any can be.
class Location {
 public:
  explicit Location(const std::string& name) {
    const bool relative = name.empty() || name[0] != '/';
    const std::size_t size = relative ? std::strlen(lockDirectory) : 0;
    const std::size_t slash = size > 0 ? 1 : 0;
    if (size + slash + name.size() >= sizeof path_) {
      path_[0] = '\0';
      return;
    }
    std::memcpy(path_, lockDirectory, size);
    std::memcpy(path_ + size, "/", slash);
    std::memcpy(path_ + size + slash, name.c_str(), name.size() + 1);
  }

  const char* Path() const { return path_; }

 private:
  char path_[PATH_MAX];
};

int OpenExisting(const char* name, Deadline& deadline) {
  // Not blocking: a FIFO by that name would hold us until somebody opened its other end.
  return Uninterrupted(deadline, [name] {
    return open(name, O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
  });
}

/// Creates the file, exclusively, so that only its creator sets its mode.
int Create(const char* name, Deadline& deadline) {
  const mode_t mode = lockFileMode.load(std::memory_order_relaxed);
  const int descriptor = Uninterrupted(deadline, [name, mode] {
    return open(name, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY, mode);
  });
  if (descriptor >= 0) {
    fchmod(descriptor, mode);  // The umask may have taken bits away that the host asked for.
  }
  return descriptor;
}

/// Opens the file, creating it if it is missing. An existing one is opened without asking for its
/// creation, as systems may refuse that for another user's file in a shared directory.
int OpenOrCreate(const char* name, Deadline& deadline) {
  int descriptor = OpenExisting(name, deadline);
  if (descriptor < 0 && errno == ENOENT) {
    descriptor = Create(name, deadline);
    if (descriptor < 0 && errno == EEXIST) {
      descriptor = OpenExisting(name, deadline);  // Another process was faster.
    }
  }
  return descriptor;
}

/// The length of a regular file in bytes; -1 for anything else.
long RegularFileLength(int descriptor) {
  // Not fstat, which gathers all there is to know: on some file systems that takes thrice as long.
  struct statx status;
  const bool known = statx(descriptor, "", AT_EMPTY_PATH, STATX_TYPE | STATX_SIZE, &status) == 0;
  return known && S_ISREG(status.stx_mode) ? static_cast<long>(status.stx_size) : -1;
}

/// Waits for the lock by asking again and again: a blocking request could only be ended by a
/// signal, and signals belong to the host.
bool LockInTime(int descriptor, int operation, Deadline& deadline) {
  if (flock(descriptor, operation | LOCK_NB) == 0) {
    return true;
  }
  long pause = kFirstPauseNanoseconds;
  while ((errno == EWOULDBLOCK || errno == EINTR) && !deadline.Passed()) {
    const timespec duration = {0, pause};
    nanosleep(&duration, nullptr);
    pause = std::min(2 * pause, kLongestPauseNanoseconds);
    if (flock(descriptor, operation | LOCK_NB) == 0) {
      return true;
    }
  }
  return false;
}

/// Calls `transfer(bytes done, bytes left)` until all is done, nothing moves any more or it fails.
/// Returns the number of bytes moved, or -1 if there were none because of a failure.
template <typename Transfer>
int TransferAll(int length, Transfer transfer) {
  int done = 0;
  while (done < length) {
    const ssize_t moved =
        Uninterrupted([&] { return transfer(done, static_cast<std::size_t>(length - done)); });
    if (moved <= 0) {
      return moved < 0 && done == 0 ? -1 : done;
    }
    done += static_cast<int>(moved);
  }
  return done;
}

}  // namespace

VFileLock::VFileLock(const std::string& name) : name_(name) {}

VFileLock::~VFileLock() = default;

int VFileLock::Read(char* buffer, int length) {
  if (descriptor_ < 0 || buffer == nullptr || length < 0) {
    return -1;
  }
  const ErrnoKeeper keeper;
  // No further than the end of the file, which saves asking once more just to hear so.
  const int available = static_cast<int>(std::min<long>(length, size_));
  return TransferAll(available, [&](int done, std::size_t left) {
    return pread(descriptor_, buffer + done, left, done);
  });
}

int VFileLock::Write(const char* data, int length) {
  if (descriptor_ < 0 || data == nullptr || length < 0) {
    return -1;
  }
  const ErrnoKeeper keeper;
  if (!HasFileSizeLimit()) {
    return Replace(data, length);
  }
  SignalGuard guard;
  const int written = Replace(data, length);
  if (written != length) {
    guard.Discard();
  }
  return written;
}

/// Overwrites the content in place, and cuts off what was longer only then.
int VFileLock::Replace(const char* data, int length) {
  const int written = TransferAll(length, [&](int done, std::size_t left) {
    return pwrite(descriptor_, data + done, left, done);
  });
  if (written == length && size_ > length &&
      Uninterrupted([&] { return ftruncate(descriptor_, length); }) != 0) {
    return -1;
  }
  size_ = written == length ? length : std::max<long>(size_, written);
  return written;
}

VFileLockGuard::VFileLockGuard(VFileLock& file) : file_(file) {}

VFileLockGuard::~VFileLockGuard() {
  if (locked_) {
    const ErrnoKeeper keeper;
    close(file_.descriptor_);  // Which gives the lock back.
    file_.descriptor_ = -1;
  }
}

bool VFileLockGuard::LockShared() { return Lock(LOCK_SH); }

bool VFileLockGuard::LockExclusive() { return Lock(LOCK_EX); }

bool VFileLockGuard::Lock(int operation) {
  if (file_.descriptor_ >= 0) {
    return false;
  }
  const ErrnoKeeper keeper;
  Deadline deadline(kLongestWaitMilliseconds);
  const int descriptor = OpenOrCreate(Location(file_.name_).Path(), deadline);
  if (descriptor < 0) {
    return false;
  }
  const long length =
      LockInTime(descriptor, operation, deadline) ? RegularFileLength(descriptor) : -1;
  if (length < 0) {
    close(descriptor);
    return false;
  }
  file_.descriptor_ = descriptor;
  file_.size_ = length;
  locked_ = true;
  return true;
}

bool VPlatformConfig::SetLockFileDirectory(const std::string& directory) {
  if (directory.size() >= sizeof lockDirectory) {
    return false;
  }
  std::memcpy(lockDirectory, directory.c_str(), directory.size() + 1);
  return true;
}

void VPlatformConfig::SetLockFileMode(unsigned int mode) {
  lockFileMode.store(static_cast<mode_t>(mode), std::memory_order_relaxed);
}
