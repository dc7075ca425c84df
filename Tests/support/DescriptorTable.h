/// The process's open file descriptors.
#ifndef DESCRIPTORTABLE_H_
#define DESCRIPTORTABLE_H_

#include <fcntl.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

namespace DescriptorTable {

inline long Count() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return std::distance(begin(all), end(all)) - 1;  // Less the one that is open for counting.
}

/// Their numbers in order, less the one that is open for listing.
inline std::vector<int> All() {
  std::vector<int> numbers;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    numbers.push_back(std::stoi(entry.path().filename().string()));
  }
  // That one is closed again by now.
  numbers.erase(std::remove_if(numbers.begin(), numbers.end(),
                               [](int number) { return fcntl(number, F_GETFD) < 0; }),
                numbers.end());
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

/// Those that `path` is open on.
inline std::vector<int> OpenOn(const std::string& path) {
  std::vector<int> found;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code ignored;
    if (std::filesystem::read_symlink(entry, ignored) == path) {
      found.push_back(std::stoi(entry.path().filename().string()));
    }
  }
  return found;
}

/// Whether a program that the process starts would not inherit `descriptor`.
inline bool ClosesOnExec(int descriptor) { return (fcntl(descriptor, F_GETFD) & FD_CLOEXEC) != 0; }

}  // namespace DescriptorTable

#endif  // DESCRIPTORTABLE_H_
