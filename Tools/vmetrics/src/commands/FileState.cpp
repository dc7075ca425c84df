#include "FileState.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vmetrics {

std::optional<FileExtent> ExtentOf(const std::string& path) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0) {
    return std::nullopt;
  }
  return FileExtent{status.st_dev, status.st_ino, status.st_size};
}

std::string BeginningOf(const std::string& path) {
  // Not blocking: a FIFO by that name would hold us until somebody opened its other end.
  const int descriptor =
      open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) {
    return {};
  }
  struct stat status;
  const bool isFile = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  char bytes[128];
  const ssize_t count = isFile ? read(descriptor, bytes, sizeof bytes) : 0;
  close(descriptor);
  return count > 0 ? std::string(bytes, static_cast<std::size_t>(count)) : std::string();
}

}  // namespace vmetrics
