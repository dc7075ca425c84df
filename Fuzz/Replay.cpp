// Runs a fuzzer's target on the files of a directory, in the order of their names: as a test, by
// any compiler. Eight times, as what a process has kept from the inputs before can matter.
// usage: replay_SUBJECT DIRECTORY

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "FileContent.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(argc == 2 ? argv[1] : "")) {
    files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  for (int round = 0; round < 8; ++round) {
    for (const std::string& file : files) {
      std::fprintf(stderr, "%s\n", file.c_str());
      const std::string input = FileContent::Read(file);
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    }
  }
  std::printf("%zu inputs\n", files.size());
  return files.empty() ? 1 : 0;
}
