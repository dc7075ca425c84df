/// The other end of a channel into which processes write numbered lines.
#ifndef NUMBEREDLINESREADER_H_
#define NUMBEREDLINESREADER_H_

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "NumberedLines.h"
#include "ProbeProcess.h"

/// Takes the lines of a channel in their order and compares each, letter for letter, with what its
/// process must have written under that number.
class NumberedLinesReader {
 public:
  NumberedLinesReader(int processes, int longest)
      : longest_(longest),
        next_(static_cast<std::size_t>(processes)),
        lost_(static_cast<std::size_t>(processes)) {}

  void Take(const std::string& line) {
    int process = -1;
    int number = -1;
    const bool numbered = std::sscanf(line.c_str(), "%d %d", &process, &number) == 2 &&
                          process >= 0 && Index(process) < next_.size() &&
                          number >= next_[Index(process)];
    if (numbered && line == NumberedLine(process, number, NumberedLineLength(number, longest_))) {
      lost_[Index(process)] += number - next_[Index(process)];
      next_[Index(process)] = number + 1;
    } else {
      ++wrong_;
      firstWrong_ = wrong_ == 1 ? line.substr(0, 100) : firstWrong_;
    }
  }

  /// No line was torn, mixed with another or out of its process's order.
  void ExpectNoneWrong() const {
    EXPECT_EQ(wrong_, 0) << "the first wrong one begins with: " << firstWrong_;
  }

  /// How many of the `count` lines of a process did not come.
  int Lost(int process, int count) const {
    return lost_[Index(process)] + count - next_[Index(process)];
  }

 private:
  static std::size_t Index(int process) { return static_cast<std::size_t>(process); }

  int longest_;
  std::vector<int> next_;
  std::vector<int> lost_;
  int wrong_ = 0;
  std::string firstWrong_;
};

/// All that comes through the pipe until its last writer is gone.
inline std::string ReadPipe(int pipe) {
  std::string text;
  std::vector<char> block(1 << 20);
  ssize_t count = 0;
  do {
    pollfd readable = {pipe, POLLIN, 0};
    const bool inTime = poll(&readable, 1, 120'000) == 1;
    EXPECT_TRUE(inTime) << "no writer wrote or ended";
    count = inTime ? read(pipe, block.data(), block.size()) : 0;
    text.append(block.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  } while (count > 0);
  return text;
}

/// Expects what a process says of its losses to agree with `lost`. It tells of a loss when it
/// begins, and of its size with the next line that goes out, if there is one.
inline void ExpectTold(int lost, const std::string& diagnostics) {
  int told = 0;
  bool open = false;
  for (const std::string& line : LinesOf(diagnostics)) {
    const std::string over = "written to again, lines lost: ";
    const std::size_t at = line.find(over);
    open = at == std::string::npos;
    told += open ? 0 : std::atoi(line.c_str() + at + over.size());
  }
  if (open) {
    EXPECT_GT(lost, told) << diagnostics;
  } else {
    EXPECT_EQ(lost, told) << diagnostics;
  }
}

#endif  // NUMBEREDLINESREADER_H_
