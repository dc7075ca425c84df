/// Files that the benchmarks write to: in memory, so that no disk is measured, and gone afterwards.
#ifndef BENCHMARKS_SCRATCHFILES_H_
#define BENCHMARKS_SCRATCHFILES_H_

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

class ScratchFiles {
 public:
  static ScratchFiles& Get() {
    static ScratchFiles files;
    return files;
  }

  std::string Path(const std::string& name) const { return directory_ + "/" + name; }

  /// A descriptor to append to a file of that name.
  int OpenForAppending(const std::string& name) const {
    return open(Path(name).c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  }

  /// Empties a file, so that repetitions do not fill the memory, or makes an empty one.
  void Empty(const std::string& name) const { std::ofstream(Path(name), std::ios::trunc); }

 private:
  ScratchFiles() {
    char name[] = "/dev/shm/vmetrics-benchmark-XXXXXX";
    directory_ = mkdtemp(name);
  }
  ~ScratchFiles() { std::filesystem::remove_all(directory_); }

  std::string directory_;
};

#endif  // BENCHMARKS_SCRATCHFILES_H_
