/// Leaves errno as the host had it.
#ifndef PLATFORM_ERRNOKEEPER_H_
#define PLATFORM_ERRNOKEEPER_H_

#include <cerrno>

/// Puts errno back to what it was when the keeper was made. A call into a library is the last thing
/// a host expects to come between its own failing call and its look at errno.
class ErrnoKeeper {
 public:
  ErrnoKeeper() : error_(errno) {}
  ~ErrnoKeeper() { errno = error_; }
  ErrnoKeeper(const ErrnoKeeper&) = delete;
  ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

 private:
  const int error_;
};

#endif  // PLATFORM_ERRNOKEEPER_H_
