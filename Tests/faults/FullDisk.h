/// Disks that a test can fill and free again. For a child process: a disk concerns all of it.
#ifndef FULLDISK_H_
#define FULLDISK_H_

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "FileSizeLimit.h"

/// A disk that fills and frees by a limit on the length of files: the next bytes still fit.
class LimitedDisk {
 public:
  static constexpr char kError[] = "File too large";

  explicit LimitedDisk(const std::string& directory) : directory_(directory) {
    std::signal(SIGXFSZ, SIG_DFL);  // It kills whom nobody guards.
    Free();
  }
  ~LimitedDisk() { FileSizeLimit::Lift(); }

  bool Mounted() const { return true; }
  void Fill() const {
    rlim_t longest = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
      longest = std::max<rlim_t>(longest, entry.file_size());
    }
    FileSizeLimit::Set(longest + 100);
  }
  void Free() const { FileSizeLimit::Set(rlim_t{1} << 30); }

 private:
  const std::string directory_;
};

/// A small file system in memory, which this process alone sees.
class SmallDisk {
 public:
  static constexpr char kError[] = "No space left on device";

  /// Mounted at `directory`, if this user may.
  explicit SmallDisk(const std::string& directory)
      : filler_(directory + "/filler"),
        mounted_(unshare(CLONE_NEWNS) == 0 &&
                 mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                 mount("none", directory.c_str(), "tmpfs", 0, "size=256k") == 0) {}

  bool Mounted() const { return mounted_; }
  void Fill() const {
    const int descriptor = open(filler_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    const char page[4096] = {};
    while (write(descriptor, page, sizeof page) > 0) {
    }
    const int error = errno;
    close(descriptor);
    if (error != ENOSPC) {
      throw std::runtime_error("cannot fill the disk");
    }
  }
  void Free() const { unlink(filler_.c_str()); }

 private:
  const std::string filler_;
  const bool mounted_;
};

#endif  // FULLDISK_H_
