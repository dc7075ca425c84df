// A host whose handlers interrupt every system call, a thousand times a second.

#include <gmock/gmock.h>
#include <sys/file.h>

#include <list>
#include <string>
#include <vector>

#include "Elapsed.h"
#include "FileContent.h"
#include "HeldLock.h"
#include "JsonLines.h"
#include "NumberedLinesReader.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kSignals = 500;
constexpr int kLongestLine = 60'000;
/// What a call may take: two locks and a line have a tenth of a second each, a busy machine more.
constexpr int kLongestMilliseconds = 2'000;

std::vector<std::string> Work(int process) {
  return {"signals", "work-under-signals", std::to_string(process), std::to_string(kSignals),
          std::to_string(kLongestLine)};
}

std::vector<std::string> operator+(std::vector<std::string> first,
                                   const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

/// What a channel holds: numbered lines and records of steps, maybe also what the probe says.
class Channel {
 public:
  Channel(int processes, const std::string& text) : reader_(processes, kLongestLine) {
    std::string records;
    for (const std::string& line : LinesOf(text)) {
      if (line.rfind('{', 0) == 0) {
        records += line + '\n';
      } else if (line.find('=') == std::string::npos) {
        reader_.Take(line);
      }
    }
    reader_.ExpectNoneWrong();
    steps_ = ParseJsonLines(records);
  }

  const std::vector<boost::json::object>& Steps() const { return steps_; }
  int StepCount() const { return static_cast<int>(steps_.size()); }
  int Lost(int process, int count) const { return reader_.Lost(process, count); }

 private:
  NumberedLinesReader reader_;
  std::vector<boost::json::object> steps_;
};

int ValueOf(const ProbeResult& result, const std::string& name) {
  const std::vector<std::string> values = result.Values(name);
  EXPECT_EQ(values.size(), 1U) << name;
  return values.empty() ? -1 : std::stoi(values[0]);
}

void ExpectAllWorked(const ProbeResult& result) {
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(ValueOf(result, "failed"), 0);
  EXPECT_LT(ValueOf(result, "longest"), kLongestMilliseconds);
}

// Two processes, so that each meets the other's lock.
TEST(SignalsTest, FileTakesEveryLineAndEveryStep) {
  const TemporaryDirectory directory;
  constexpr int kProcesses = 2;
  const std::vector<std::string> metrics{"metrics", directory / "metrics", "gate"};
  std::list<ProbeProcess> probes;
  for (int process = 0; process < kProcesses; ++process) {
    probes.emplace_back(directory, metrics + Work(process));
  }
  for (ProbeProcess& probe : probes) {
    probe.Go();
  }
  std::vector<int> lines;
  for (ProbeProcess& probe : probes) {
    const ProbeResult result = probe.Wait();
    ExpectAllWorked(result);
    EXPECT_EQ(result.diagnostics, "");
    lines.push_back(ValueOf(result, "lines"));
  }
  const Channel channel(kProcesses, FileContent::Read(directory / "metrics"));
  EXPECT_EQ(channel.Lost(0, lines[0]), 0);
  EXPECT_EQ(channel.Lost(1, lines[1]), 0);
  EXPECT_EQ(channel.StepCount(), lines[0] + lines[1]);
}

// The pipe is so small that the signals come while the writer waits for room.
TEST(SignalsTest, PipeTakesEveryLineAndEveryStep) {
  const TemporaryDirectory directory;
  int metrics[2];
  ASSERT_EQ(pipe2(metrics, O_CLOEXEC), 0);
  ASSERT_EQ(fcntl(metrics[1], F_SETPIPE_SZ, 4'096), 4'096);
  ProbeProcess probe(directory, std::vector<std::string>{"gate"} + Work(0), metrics[1]);
  close(metrics[1]);
  probe.Go();
  ProbeResult result;
  result.output = ReadPipe(metrics[0]);
  close(metrics[0]);
  const ProbeResult ended = probe.Wait();
  result.status = ended.status;
  result.diagnostics = ended.diagnostics;
  ExpectAllWorked(result);

  const Channel channel(1, result.output);
  const int lines = ValueOf(result, "lines");
  const int lost = channel.Lost(0, lines) + lines - channel.StepCount();
  // Only a reader that a busy machine keeps from reading for a tenth of a second makes a loss. Were
  // each wait that a signal ends a loss, there would be hundreds.
  EXPECT_LE(lost, 5);
  ExpectTold(lost, result.diagnostics);
}

// A lock is waited for in many short sleeps, each of which a signal ends early; altogether they
// must not take longer.
TEST(SignalsTest, LockThatIsNotGivenBackHoldsNobodyUp) {
  const TemporaryDirectory directory;
  const HeldLock held(directory / "spanId", LOCK_EX);
  const ProbeResult result = RunProbe(directory, {"metrics", directory / "metrics", "signals",
                                                  "work-under-signals", "0", "100", "60000"});
  ExpectAllWorked(result);
  const Channel channel(1, FileContent::Read(directory / "metrics"));
  EXPECT_EQ(channel.StepCount(), ValueOf(result, "lines"));
  for (const auto& record : channel.Steps()) {
    EXPECT_EQ(TextOf(record, "parentSpanId"), "ParentSpanId");
  }
}

TEST(SignalsTest, FullPipeHoldsNobodyUp) {
  const TemporaryDirectory directory;
  const TestPipe pipe;
  const std::size_t dots = pipe.Fill();
  ProbeResult result;
  const long elapsed = Milliseconds([&] {
    result = ProbeProcess(directory, {"signals", "lines", "0", "3", "4000"}, pipe.Writer()).Wait();
  });
  EXPECT_LT(elapsed, 3 * kLongestMilliseconds);
  EXPECT_TRUE(Succeeded(result));
  EXPECT_THAT(result.diagnostics, HasSubstr("metrics channel: a line is lost"));
  EXPECT_EQ(pipe.Drain(), std::string(dots, '.'));
}

}  // namespace
