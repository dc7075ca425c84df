#include "SystemCalls.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iterator>

namespace {

using Extent = SystemCallFailure::Extent;

/// More calls than anything can need that comes to an end.
constexpr long kMostCalls = 100'000;

struct Plan {
  bool active = false;
  SystemCall call = SystemCall::kOpen;
  Fault fault = {"", 0, nullptr};
  int untilFailure = 0;
  Extent extent = Extent::kOnce;
  int hits = 0;
  long calls = 0;
} plan;

constexpr long kMillisecond = 1'000'000;
constexpr long kSecond = 1000 * kMillisecond;

long clockNanoseconds = kSecond;

/// Whether the call that is being made is to fail.
bool FailsNow(SystemCall call) {
  if (!plan.active) {
    return false;
  }
  if (++plan.calls > kMostCalls) {
    std::fprintf(stderr, "%s is called without an end\n", SystemCalls::NameOf(call));
    std::abort();
  }
  if (call != plan.call || plan.untilFailure == 0) {
    return false;
  }
  if (plan.untilFailure > 1) {
    --plan.untilFailure;
    return false;
  }
  plan.untilFailure = plan.extent == Extent::kOnce ? 0 : 1;
  ++plan.hits;
  clockNanoseconds += plan.fault.error != 0 ? kMillisecond : 0;
  return true;
}

int Fail() {
  errno = plan.fault.error;
  return -1;
}

/// A call that either fails or goes on to the system.
template <typename Real>
int Make(SystemCall call, Real real) {
  return FailsNow(call) ? Fail() : real();
}

/// A call that moves `size` bytes: `real` moves as many as it is given.
template <typename Real>
ssize_t Move(SystemCall call, std::size_t size, Real real) {
  if (!FailsNow(call)) {
    return real(size);
  }
  if (plan.fault.error != 0) {
    return Fail();
  }
  const std::size_t part = plan.fault.part(size);
  return part == 0 ? 0 : real(part);
}

struct Row {
  SystemCall call;
  const char* name;
  bool repeatable;  ///< Made again when a signal has interrupted it, or it has moved a part.
  bool movesBytes;
};

constexpr Row kRows[] = {
    {SystemCall::kOpen, "open", true, false},
    {SystemCall::kClose, "close", false, false},
    {SystemCall::kFstat, "fstat", false, false},
    {SystemCall::kStatx, "statx", false, false},
    {SystemCall::kLstat, "lstat", false, false},
    {SystemCall::kFchmod, "fchmod", false, false},
    {SystemCall::kFcntl, "fcntl", false, false},
    {SystemCall::kDup3, "dup3", false, false},
    {SystemCall::kFlock, "flock", true, false},
    {SystemCall::kPread, "pread", true, true},
    {SystemCall::kPwrite, "pwrite", true, true},
    {SystemCall::kFtruncate, "ftruncate", true, false},
    {SystemCall::kWrite, "write", true, true},
    {SystemCall::kWritev, "writev", true, true},
    {SystemCall::kSend, "send", true, true},
    {SystemCall::kPoll, "poll", true, false},
    {SystemCall::kNanosleep, "nanosleep", true, false},
    {SystemCall::kGetrlimit, "getrlimit", false, false},
};

const Row& RowOf(SystemCall call) {
  return *std::find_if(std::begin(kRows), std::end(kRows),
                       [call](const Row& row) { return row.call == call; });
}

}  // namespace

std::vector<SystemCall> SystemCalls::All() {
  std::vector<SystemCall> all;
  for (const Row& row : kRows) {
    all.push_back(row.call);
  }
  return all;
}

const char* SystemCalls::NameOf(SystemCall call) { return RowOf(call).name; }

bool SystemCalls::IsRepeatable(SystemCall call) { return RowOf(call).repeatable; }

std::vector<Fault> SystemCalls::FaultsOf(SystemCall call) {
  std::vector<Fault> faults = {{"EINTR", EINTR, nullptr},   {"EIO", EIO, nullptr},
                               {"ENOSPC", ENOSPC, nullptr}, {"EDQUOT", EDQUOT, nullptr},
                               {"EMFILE", EMFILE, nullptr}, {"EACCES", EACCES, nullptr},
                               {"EROFS", EROFS, nullptr},   {"ENOLCK", ENOLCK, nullptr},
                               {"ENOENT", ENOENT, nullptr}, {"EWOULDBLOCK", EWOULDBLOCK, nullptr}};
  if (RowOf(call).movesBytes) {
    faults.push_back({"nothing", 0, [](std::size_t) { return std::size_t{0}; }});
    faults.push_back(
        {"one byte", 0, [](std::size_t all) { return std::min<std::size_t>(all, 1); }});
    faults.push_back({"half", 0, [](std::size_t all) { return (all + 1) / 2; }});
    faults.push_back({"all but one", 0, [](std::size_t all) { return all > 1 ? all - 1 : all; }});
  }
  return faults;
}

long SystemCalls::Milliseconds() { return clockNanoseconds / kMillisecond; }

void SystemCalls::Advance(long milliseconds) { clockNanoseconds += milliseconds * kMillisecond; }

SystemCallFailure::SystemCallFailure(SystemCall call, const Fault& fault, int first,
                                     Extent extent) {
  plan = {true, call, fault, first, extent, 0, 0};
}

SystemCallFailure::~SystemCallFailure() { plan.active = false; }

int SystemCallFailure::Hits() const { return plan.hits; }

// What the linker puts in the place of the calls, and what it calls the real ones.
extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_close(int descriptor);
int __real_fstat(int descriptor, struct stat* status);
int __real_statx(int directory, const char* path, int flags, unsigned int mask,
                 struct statx* status);
int __real_lstat(const char* path, struct stat* status);
int __real_fchmod(int descriptor, mode_t mode);
int __real_fcntl(int descriptor, int command, ...);
int __real_dup3(int from, int to, int flags);
int __real_flock(int descriptor, int operation);
int __real_ftruncate(int descriptor, off_t length);
ssize_t __real_pread(int descriptor, void* data, size_t size, off_t offset);
ssize_t __real_pwrite(int descriptor, const void* data, size_t size, off_t offset);
ssize_t __real_write(int descriptor, const void* data, size_t size);
ssize_t __real_writev(int descriptor, const iovec* parts, int count);
ssize_t __real_send(int descriptor, const void* data, size_t size, int flags);
int __real_poll(pollfd* requests, nfds_t count, int timeout);
int __real_nanosleep(const timespec* duration, timespec* left);
int __real_getrlimit(__rlimit_resource_t resource, rlimit* limit);

int __wrap_open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    std::va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return Make(SystemCall::kOpen, [&] { return __real_open(path, flags, mode); });
}

/// The system gives a descriptor back also where it says that closing failed.
int __wrap_close(int descriptor) {
  const int result = __real_close(descriptor);
  return Make(SystemCall::kClose, [&] { return result; });
}

int __wrap_fstat(int descriptor, struct stat* status) {
  return Make(SystemCall::kFstat, [&] { return __real_fstat(descriptor, status); });
}

int __wrap_statx(int directory, const char* path, int flags, unsigned int mask,
                 struct statx* status) {
  return Make(SystemCall::kStatx,
              [&] { return __real_statx(directory, path, flags, mask, status); });
}

int __wrap_lstat(const char* path, struct stat* status) {
  return Make(SystemCall::kLstat, [&] { return __real_lstat(path, status); });
}

int __wrap_fchmod(int descriptor, mode_t mode) {
  return Make(SystemCall::kFchmod, [&] { return __real_fchmod(descriptor, mode); });
}

int __wrap_fcntl(int descriptor, int command, ...) {
  std::va_list arguments;
  va_start(arguments, command);
  const int argument = va_arg(arguments, int);  // The only kind that is used here.
  va_end(arguments);
  return Make(SystemCall::kFcntl, [&] { return __real_fcntl(descriptor, command, argument); });
}

int __wrap_dup3(int from, int to, int flags) {
  return Make(SystemCall::kDup3, [&] { return __real_dup3(from, to, flags); });
}

int __wrap_flock(int descriptor, int operation) {
  return Make(SystemCall::kFlock, [&] { return __real_flock(descriptor, operation); });
}

int __wrap_ftruncate(int descriptor, off_t length) {
  return Make(SystemCall::kFtruncate, [&] { return __real_ftruncate(descriptor, length); });
}

ssize_t __wrap_pread(int descriptor, void* data, size_t size, off_t offset) {
  return Move(SystemCall::kPread, size,
              [&](std::size_t part) { return __real_pread(descriptor, data, part, offset); });
}

ssize_t __wrap_pwrite(int descriptor, const void* data, size_t size, off_t offset) {
  return Move(SystemCall::kPwrite, size,
              [&](std::size_t part) { return __real_pwrite(descriptor, data, part, offset); });
}

ssize_t __wrap_write(int descriptor, const void* data, size_t size) {
  return Move(SystemCall::kWrite, size,
              [&](std::size_t part) { return __real_write(descriptor, data, part); });
}

ssize_t __wrap_writev(int descriptor, const iovec* parts, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    all.append(static_cast<const char*>(parts[i].iov_base), parts[i].iov_len);
  }
  return Move(SystemCall::kWritev, all.size(), [&](std::size_t part) {
    return part == all.size() ? __real_writev(descriptor, parts, count)
                              : __real_write(descriptor, all.data(), part);
  });
}

ssize_t __wrap_send(int descriptor, const void* data, size_t size, int flags) {
  return Move(SystemCall::kSend, size,
              [&](std::size_t part) { return __real_send(descriptor, data, part, flags); });
}

int __wrap_poll(pollfd* requests, nfds_t count, int timeout) {
  if (!plan.active) {
    return __real_poll(requests, count, timeout);
  }
  return Make(SystemCall::kPoll, [&] {
    const int ready = __real_poll(requests, count, 0);
    clockNanoseconds += ready == 0 ? timeout * kMillisecond : 0;
    return ready;
  });
}

int __wrap_nanosleep(const timespec* duration, timespec* left) {
  if (!plan.active) {
    return __real_nanosleep(duration, left);
  }
  return Make(SystemCall::kNanosleep, [&] {
    clockNanoseconds += duration->tv_sec * kSecond + duration->tv_nsec;
    return 0;
  });
}

int __wrap_getrlimit(__rlimit_resource_t resource, rlimit* limit) {
  return Make(SystemCall::kGetrlimit, [&] { return __real_getrlimit(resource, limit); });
}

int __wrap_clock_gettime(clockid_t, timespec* now) {
  *now = {clockNanoseconds / kSecond, clockNanoseconds % kSecond};
  return 0;
}

}  // extern "C"
