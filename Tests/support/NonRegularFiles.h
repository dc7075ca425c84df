/// Names at which something else than a regular file stands.
#ifndef NONREGULARFILES_H_
#define NONREGULARFILES_H_

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <stdexcept>
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
    MakeSocket(directory_ / "socket");
  }

  /// All the names, and a device's.
  std::vector<std::string> Names() const {
    return {directory_ / "directory", directory_ / "fifo",   directory_ / "symlink",
            directory_ / "dangling",  directory_ / "socket", "/dev/null"};
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
  static void MakeSocket(const std::string& path) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
      throw std::runtime_error("cannot make a socket at " + path);
    }
    close(descriptor);
  }

  static constexpr char kTargetContent[] = "of somebody else";

  TemporaryDirectory directory_;
};

#endif  // NONREGULARFILES_H_
