/// Names at which something else than a regular file stands.
#ifndef NONREGULARFILES_H_
#define NONREGULARFILES_H_

#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "FileContent.h"
#include "TemporaryDirectory.h"

/// One of each kind, in a directory of its own.
class NonRegularFiles {
 public:
  NonRegularFiles() {
    std::filesystem::create_directory(directory_ / "directory");
    mkfifo((directory_ / "fifo").c_str(), 0600);
    FileContent::Write(Target(), kTargetContent);
    std::filesystem::create_symlink(Target(), directory_ / "symlink");
    std::filesystem::create_symlink(DanglingTarget(), directory_ / "dangling");
  }

  /// All the names, and a device's.
  std::vector<std::string> Names() const {
    return {directory_ / "directory", directory_ / "fifo", directory_ / "symlink",
            directory_ / "dangling", "/dev/null"};
  }

  /// What the symbolic links point to: a regular file, and one that is missing.
  std::string Target() const { return directory_ / "target"; }
  std::string DanglingTarget() const { return directory_ / "missing"; }

  /// Whether nothing was written or created through a link.
  bool TargetsUntouched() const {
    return FileContent::Read(Target()) == kTargetContent &&
           !std::filesystem::exists(DanglingTarget());
  }

 private:
  static constexpr char kTargetContent[] = "of somebody else";

  TemporaryDirectory directory_;
};

#endif  // NONREGULARFILES_H_
