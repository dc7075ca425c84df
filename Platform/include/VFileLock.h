/// \file
/// Small files that several processes share, read and written under a lock.
///
/// Example:
///
///     VFileLock file("spanId");
///     VFileLockGuard guard(file);
///     if (guard.LockExclusive()) {
///       file.Write(text.data(), static_cast<int>(text.size()));
///     }
#ifndef VFILELOCK_H_
#define VFILELOCK_H_

#include <string>

/// A file by name. It can be read and written only while a VFileLockGuard on it holds a lock.
///
/// An object belongs to one thread at a time. Different objects of the same name, in whatever
/// threads and processes, exclude each other through their locks.
class VFileLock {
 public:
  /// Names the file; nothing is opened yet. A relative name lands in the working directory unless
  /// the platform was told another one. May throw std::bad_alloc.
  explicit VFileLock(const std::string& name);
  ~VFileLock();
  VFileLock(const VFileLock&) = delete;
  VFileLock& operator=(const VFileLock&) = delete;

  /// Reads up to `length` bytes from the start of the file into `buffer`.
  ///
  /// Returns the number of bytes read, fewer than `length` where the file is shorter, or -1 when
  /// the file cannot be read or no lock is held.
  int Read(char* buffer, int length);

  /// Replaces the content of the file with the `length` bytes at `data`.
  ///
  /// Returns the number of bytes written, or -1 when nothing could be written, the file could not
  /// be made as short as `length`, or no lock is held. The content is overwritten in place: a
  /// process killed half-way leaves no empty file behind.
  int Write(const char* data, int length);

 private:
  friend class VFileLockGuard;

  int Replace(const char* data, int length);

  std::string name_;
  int descriptor_ = -1;  ///< Open exactly while a guard holds the lock.
  long size_ = 0;        ///< The file's length in bytes, as of the locking.
};

/// A lock on a VFileLock, given back when the guard is destroyed.
class VFileLockGuard {
 public:
  /// Takes no lock yet. `file` must outlive the guard.
  explicit VFileLockGuard(VFileLock& file);
  ~VFileLockGuard();
  VFileLockGuard(const VFileLockGuard&) = delete;
  VFileLockGuard& operator=(const VFileLockGuard&) = delete;

  /// Locks the file together with other readers, creating it if it is missing.
  ///
  /// False when the lock cannot be had within a tenth of a second, when the file cannot be opened
  /// or is not a regular file, or when a guard holds a lock on this object already.
  bool LockShared();

  /// Locks the file for this guard alone, creating it if it is missing. False as for LockShared.
  bool LockExclusive();

 private:
  bool Lock(int operation);

  VFileLock& file_;
  bool locked_ = false;  ///< Whether it is this guard that holds the lock.
};

#endif  // VFILELOCK_H_
