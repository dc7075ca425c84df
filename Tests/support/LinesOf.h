/// Texts line by line.
#ifndef LINESOF_H_
#define LINESOF_H_

#include <sstream>
#include <string>
#include <vector>

/// The lines of `text`, without their line breaks.
inline std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// The last line of `text` as it stands there, with its line break if it has one.
inline std::string LastLineOf(const std::string& text) {
  return text.substr(text.size() < 2 ? 0 : text.rfind('\n', text.size() - 2) + 1);
}

#endif  // LINESOF_H_
