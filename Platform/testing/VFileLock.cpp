#include "VFileLock.h"

#include <algorithm>

#include "FakePlatformState.h"

using FakePlatform::TheState;

// Two objects that are locked at once would be a deadlock in a real process; the fake lets them.

VFileLock::VFileLock(const std::string& name) : name_(name) {}

VFileLock::~VFileLock() = default;

int VFileLock::Read(char* buffer, int length) {
  TheState().fileOperations.push_back("read " + std::to_string(length) + " " + name_);
  if (descriptor_ < 0) {
    return -1;
  }
  const std::string& content = TheState().files[name_];
  return static_cast<int>(content.copy(buffer, static_cast<std::size_t>(length)));
}

int VFileLock::Write(const char* data, int length) {
  TheState().fileOperations.push_back("write " + std::to_string(length) + " " + name_);
  const int count = std::min(length, TheState().writeLimit);
  if (descriptor_ < 0 || count < 0) {
    return -1;
  }
  TheState().files[name_].assign(data, static_cast<std::size_t>(count));
  return count;
}

VFileLockGuard::VFileLockGuard(VFileLock& file) : file_(file) {}

VFileLockGuard::~VFileLockGuard() {
  if (locked_) {
    TheState().fileOperations.push_back("unlock " + file_.name_);
    file_.descriptor_ = -1;
  }
}

bool VFileLockGuard::LockShared() {
  TheState().fileOperations.push_back("lock shared " + file_.name_);
  return Lock(0);
}

bool VFileLockGuard::LockExclusive() {
  TheState().fileOperations.push_back("lock exclusive " + file_.name_);
  return Lock(0);
}

bool VFileLockGuard::Lock(int) {
  const int number = ++TheState().locks;
  const bool refused =
      number >= TheState().firstRefusedLock && number <= TheState().lastRefusedLock;
  if (refused) {
    return false;
  }
  const std::string& content = TheState().files[file_.name_];  // Made if it is missing.
  file_.size_ = static_cast<long>(content.size());
  file_.descriptor_ = 0;
  locked_ = true;
  return true;
}
