#include "VFileLock.h"

#include <algorithm>

#include "FakePlatformState.h"

using FakePlatform::LockedState;

// Two objects that are locked at once would be a deadlock in a real process; the fake lets them.

VFileLock::VFileLock(const std::string& name) : name_(name) {}

VFileLock::~VFileLock() = default;

int VFileLock::Read(char* buffer, int length) {
  const LockedState state;
  state->fileOperations.push_back("read " + std::to_string(length) + " " + name_);
  if (descriptor_ < 0) {
    return -1;
  }
  const std::string& content = state->files[name_];
  return static_cast<int>(content.copy(buffer, static_cast<std::size_t>(length)));
}

int VFileLock::Write(const char* data, int length) {
  const LockedState state;
  state->fileOperations.push_back("write " + std::to_string(length) + " " + name_);
  const int count = std::min(length, state->writeLimit);
  if (descriptor_ < 0 || count < 0) {
    return -1;
  }
  state->files[name_].assign(data, static_cast<std::size_t>(count));
  return count;
}

VFileLockGuard::VFileLockGuard(VFileLock& file) : file_(file) {}

VFileLockGuard::~VFileLockGuard() {
  if (locked_) {
    LockedState()->fileOperations.push_back("unlock " + file_.name_);
    file_.descriptor_ = -1;
  }
}

bool VFileLockGuard::LockShared() {
  LockedState()->fileOperations.push_back("lock shared " + file_.name_);
  return Lock(0);
}

bool VFileLockGuard::LockExclusive() {
  LockedState()->fileOperations.push_back("lock exclusive " + file_.name_);
  return Lock(0);
}

bool VFileLockGuard::Lock(int) {
  const LockedState state;
  const int number = ++state->locks;
  const bool refused = number >= state->firstRefusedLock && number <= state->lastRefusedLock;
  if (refused) {
    return false;
  }
  const std::string& content = state->files[file_.name_];  // Made if it is missing.
  file_.size_ = static_cast<long>(content.size());
  file_.descriptor_ = 0;
  locked_ = true;
  return true;
}
