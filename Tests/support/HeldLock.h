/// A file whose lock somebody keeps.
#ifndef HELDLOCK_H_
#define HELDLOCK_H_

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <string>

/// Holds a lock on the file as another process would.
class HeldLock {
 public:
  HeldLock(const std::string& path, int operation)
      : descriptor_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    EXPECT_EQ(flock(descriptor_, operation), 0);
  }
  ~HeldLock() { close(descriptor_); }
  HeldLock(const HeldLock&) = delete;
  HeldLock& operator=(const HeldLock&) = delete;

 private:
  int descriptor_;
};

#endif  // HELDLOCK_H_
