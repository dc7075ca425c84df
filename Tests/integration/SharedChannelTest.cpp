// Several processes that write to one metrics channel at once.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <list>
#include <string>
#include <vector>

#include "NumberedLines.h"
#include "ProbeProcess.h"

namespace {

constexpr int kProcesses = 8;

/// Takes the lines of a channel in their order and compares each, letter for letter, with the one
/// that its process must have written next.
class NumberedLinesReader {
 public:
  NumberedLinesReader(int processes, int longest)
      : next_(static_cast<std::size_t>(processes)), longest_(longest) {}

  void Take(const std::string& line) {
    const auto process = static_cast<std::size_t>(std::atoi(line.c_str()));
    const bool known = process < next_.size();
    const int number = known ? next_[process]++ : 0;
    const std::string expected =
        NumberedLine(static_cast<int>(process), number, NumberedLineLength(number, longest_));
    if (!known || line != expected) {
      ++wrong_;
      firstWrong_ = wrong_ == 1 ? line.substr(0, 100) : firstWrong_;
    }
  }

  /// Every process wrote `count` lines, and all of them came.
  void ExpectAll(int count) const {
    EXPECT_EQ(wrong_, 0) << "the first wrong one begins with: " << firstWrong_;
    EXPECT_EQ(next_, std::vector<int>(next_.size(), count));
  }

 private:
  std::vector<int> next_;
  int longest_;
  int wrong_ = 0;
  std::string firstWrong_;
};

/// Eight processes that write `count` lines each, from the moment when all of them are there.
class Writers {
 public:
  Writers(const ProbeDirectory& directory, const std::vector<std::string>& channel, int count,
          int longest, int output = -1) {
    for (int process = 0; process < kProcesses; ++process) {
      std::vector<std::string> commands = channel;
      commands.insert(commands.end(), {"gate", "lines", std::to_string(process),
                                       std::to_string(count), std::to_string(longest)});
      probes_.emplace_back(directory, commands, output);
    }
  }

  void Go() {
    for (ProbeProcess& probe : probes_) {
      probe.Go();
    }
  }

  /// All came to their end, and none had to complain.
  void ExpectSuccess() {
    for (ProbeProcess& probe : probes_) {
      const ProbeResult result = probe.Wait();
      EXPECT_TRUE(Succeeded(result));
      EXPECT_EQ(result.diagnostics, "");
    }
  }

 private:
  std::list<ProbeProcess> probes_;
};

// 100,000 lines, 71 MB: 96,000 of 40 to 439 bytes, 3,600 of 4,000 to 8,999, 400 of 60,000.
TEST(SharedChannelTest, FileTakesEveryLineWholeAndInOrder) {
  const ProbeDirectory directory;
  const std::string path = directory.File("metrics");
  constexpr int kCount = 12'500;
  constexpr int kLongest = 60'000;
  Writers writers(directory, {"metrics", path}, kCount, kLongest);
  writers.Go();
  writers.ExpectSuccess();

  NumberedLinesReader reader(kProcesses, kLongest);
  std::ifstream metrics(path, std::ios::binary);
  for (std::string line; std::getline(metrics, line);) {
    reader.Take(line);
  }
  reader.ExpectAll(kCount);
}

/// All that comes through the pipe until its last writer is gone. Nothing but reading happens in
/// here: a writer that found no room for a tenth of a second would drop its line.
std::string ReadPipe(int pipe) {
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

// A pipe takes up to 4,096 bytes in one piece, the line break included: 40,000 lines, of which one
// in 25 is as long as that or almost.
TEST(SharedChannelTest, PipeTakesEveryLineUpTo4095BytesWholeAndInOrder) {
  const ProbeDirectory directory;
  constexpr int kCount = 5'000;
  constexpr int kLongest = 4'095;
  int metrics[2];
  ASSERT_EQ(pipe2(metrics, O_CLOEXEC), 0);
  fcntl(metrics[0], F_SETPIPE_SZ, 1 << 20);  // So that a busy machine makes no writer wait long.
  Writers writers(directory, {}, kCount, kLongest, metrics[1]);
  close(metrics[1]);
  writers.Go();
  const std::string text = ReadPipe(metrics[0]);
  close(metrics[0]);
  writers.ExpectSuccess();

  NumberedLinesReader reader(kProcesses, kLongest);
  for (const std::string& line : LinesOf(text)) {
    reader.Take(line);
  }
  reader.ExpectAll(kCount);
}

}  // namespace
