/// Whole files as strings.
#ifndef FILECONTENT_H_
#define FILECONTENT_H_

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace FileContent {

inline std::string Read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error("cannot read " + path);
  }
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void Write(const std::string& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!(file << content << std::flush)) {
    throw std::runtime_error("cannot write " + path);
  }
}

}  // namespace FileContent

#endif  // FILECONTENT_H_
