/// A small file that several processes share: see src/VFileLock.cpp.
#ifndef EXAMPLE_VFILELOCK_H_
#define EXAMPLE_VFILELOCK_H_

#include <string>

/// Read and written only while a guard holds a lock on it.
class VFileLock {
 public:
  explicit VFileLock(const std::string& name) : name_(name) {}

  /// Reads from the beginning; returns the number of bytes, or -1.
  int Read(char* buffer, int length);

  /// Replaces the whole content; returns the number of bytes, or -1.
  int Write(const char* data, int length);

 private:
  friend class VFileLockGuard;

  std::string name_;
  int descriptor_ = -1;  ///< Open while it is locked.
};

/// Gives its lock back when it is destroyed.
class VFileLockGuard {
 public:
  explicit VFileLockGuard(VFileLock& file) : file_(file) {}
  ~VFileLockGuard();
  VFileLockGuard(const VFileLockGuard&) = delete;
  VFileLockGuard& operator=(const VFileLockGuard&) = delete;

  // Both make the file if it is missing. False if the lock cannot be had, which is no error.
  bool LockShared();
  bool LockExclusive();

 private:
  bool Lock(int operation);

  VFileLock& file_;
};

#endif  // EXAMPLE_VFILELOCK_H_
