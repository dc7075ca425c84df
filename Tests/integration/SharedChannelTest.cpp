// Several processes that write to one metrics channel at once.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <list>
#include <string>
#include <vector>

#include "NumberedLinesReader.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"

namespace {

constexpr int kProcesses = 8;

/// Eight processes that write `count` lines each, from the moment when all of them are there.
class Writers {
 public:
  Writers(const TemporaryDirectory& directory, const std::vector<std::string>& channel, int count,
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

  /// Waits until all have come to their end; what each had to say of the channel.
  std::vector<std::string> Diagnostics() {
    std::vector<std::string> diagnostics;
    for (ProbeProcess& probe : probes_) {
      const ProbeResult result = probe.Wait();
      EXPECT_TRUE(Succeeded(result));
      diagnostics.push_back(result.diagnostics);
    }
    return diagnostics;
  }

 private:
  std::list<ProbeProcess> probes_;
};

// 100,000 lines, 71 MB: 96,000 of 40 to 439 bytes, 3,600 of 4,000 to 8,999, 400 of 60,000.
TEST(SharedChannelTest, FileTakesEveryLineWholeAndInOrder) {
  const TemporaryDirectory directory;
  const std::string path = directory / "metrics";
  constexpr int kCount = 12'500;
  constexpr int kLongest = 60'000;
  Writers writers(directory, {"metrics", path}, kCount, kLongest);
  writers.Go();
  for (const std::string& diagnostics : writers.Diagnostics()) {
    EXPECT_EQ(diagnostics, "");
  }

  NumberedLinesReader reader(kProcesses, kLongest);
  std::ifstream metrics(path, std::ios::binary);
  for (std::string line; std::getline(metrics, line);) {
    reader.Take(line);
  }
  reader.ExpectNoneWrong();
  for (int process = 0; process < kProcesses; ++process) {
    EXPECT_EQ(reader.Lost(process, kCount), 0) << process;
  }
}

// A pipe takes up to 4,096 bytes in one piece, the line break included: 40,000 lines, of which one
// in 25 is 4,024 to 4,095 bytes long. A writer that finds no room for a tenth of a second, as it
// may on a busy machine, drops its line and says so: no line is lost without a word. One in fifty
// may be: to drop that many, a process finds no room for ten seconds altogether.
TEST(SharedChannelTest, PipeTakesLinesUpTo4095BytesWholeAndInOrder) {
  const TemporaryDirectory directory;
  constexpr int kCount = 5'000;
  constexpr int kLongest = 4'095;
  constexpr int kMostLost = kCount / 50;
  int metrics[2];
  ASSERT_EQ(pipe2(metrics, O_CLOEXEC), 0);
  Writers writers(directory, {}, kCount, kLongest, metrics[1]);
  close(metrics[1]);
  writers.Go();
  const std::string text = ReadPipe(metrics[0]);
  close(metrics[0]);

  NumberedLinesReader reader(kProcesses, kLongest);
  for (const std::string& line : LinesOf(text)) {
    reader.Take(line);
  }
  reader.ExpectNoneWrong();
  const std::vector<std::string> diagnostics = writers.Diagnostics();
  for (int process = 0; process < kProcesses; ++process) {
    const int lost = reader.Lost(process, kCount);
    EXPECT_LE(lost, kMostLost) << process;
    ExpectTold(lost, diagnostics[static_cast<std::size_t>(process)]);
  }
}

}  // namespace
