/// What a file is like, to see whether it has been written to.
#ifndef VMETRICS_TOOL_FILESTATE_H_
#define VMETRICS_TOOL_FILESTATE_H_

#include <sys/types.h>

#include <optional>
#include <string>

namespace vmetrics {

/// Which file it is, and how long.
struct FileExtent {
  dev_t device;
  ino_t number;
  off_t size;

  bool operator==(const FileExtent& other) const {
    return device == other.device && number == other.number && size == other.size;
  }
};

/// Nothing where there is no such file.
std::optional<FileExtent> ExtentOf(const std::string& path);

/// Its first 128 bytes; none where it is no regular file or cannot be read.
std::string BeginningOf(const std::string& path);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_FILESTATE_H_
