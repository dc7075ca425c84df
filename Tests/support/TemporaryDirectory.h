/// A place for a test's files, gone when the test is over.
#ifndef TEMPORARYDIRECTORY_H_
#define TEMPORARYDIRECTORY_H_

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

class TemporaryDirectory {
 public:
  TemporaryDirectory()
      : path_((std::filesystem::temp_directory_path() / "vmetricsXXXXXX").string()) {
    if (mkdtemp(path_.data()) == nullptr) {
      throw std::runtime_error("cannot make a directory like " + path_);
    }
    path_ = std::filesystem::canonical(path_).string();
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  const std::string& Path() const { return path_; }

  /// The absolute name of `name` in the directory.
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

#endif  // TEMPORARYDIRECTORY_H_
