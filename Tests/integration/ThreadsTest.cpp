// Threads of one process. Under the thread sanitizer a race in the library ends the probe with a
// status of its own and a report among the diagnostics.

#include <gmock/gmock.h>

#include <map>
#include <set>
#include <string>

#include "FileContent.h"
#include "JsonLines.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"

namespace {

using testing::IsEmpty;

constexpr int kThreads = 8;
constexpr int kRounds = 1250;

class ThreadsTest : public testing::Test {
 protected:
  void Run() {
    result_ = RunProbe(directory_, {"metrics", directory_ / "metrics", "diagnostics", "3",
                                    "threads", std::to_string(kThreads), std::to_string(kRounds)});
    ASSERT_TRUE(Succeeded(result_));
  }

  TemporaryDirectory directory_;
  ProbeResult result_;
};

TEST_F(ThreadsTest, EveryCallOfEveryThreadHasItsResult) {
  Run();
  EXPECT_THAT(result_.Values("wrong"), IsEmpty());
}

// An identifier is made from 32 random bits, and is as good as they are: some processors' random
// source repeats itself, here up to 32 times in 10,000 calls from several threads. Threads that
// shared a generator would repeat whole runs of identifiers.
TEST_F(ThreadsTest, IdentifiersOfAllThreadsDiffer) {
  Run();
  const std::vector<std::string> identifiers = result_.Values("identifier");
  EXPECT_EQ(identifiers.size(), std::size_t{kThreads * kRounds});
  const std::set<std::string> distinct(identifiers.begin(), identifiers.end());
  EXPECT_GE(distinct.size(), identifiers.size() * 99 / 100);
}

TEST_F(ThreadsTest, EveryReportAndEveryStepIsALine) {
  Run();
  std::map<std::string, int> lines;
  for (const auto& line : ParseJsonLines(FileContent::Read(directory_ / "metrics"))) {
    ++lines[line.contains("spanId") ? "step" : TextOf(line, "eventId")];
  }
  constexpr int kEach = kThreads * kRounds / 25;
  EXPECT_EQ(lines, (std::map<std::string, int>{{"nox_user_connect", 3 * kEach},
                                               {"nox_user_operation", kEach},
                                               {"VEVENT_MSG_PROCESS_SLOW", kEach},
                                               {"VEVENT_MSG_TRANS_CHANGE", kEach},
                                               {"VMETRICS_USB_DRIVER_ERROR", kEach},
                                               {"step", kEach}}));
}

// Seven of the eight threads fail an argument check while the eighth makes the table.
TEST_F(ThreadsTest, RefusedCallsDoNotDisturbTheFirstEvent) {
  Run();
  int refused = 0;
  int cleared = 0;
  for (const std::string& line : LinesOf(result_.diagnostics)) {
    refused += line.find("ERROR InsertRecord: spanParentId is nullptr") != std::string::npos;
    cleared += line.find("INFO ResourceClear: ResourceClear") != std::string::npos;
  }
  EXPECT_EQ(refused, kThreads - 1);
  EXPECT_EQ(cleared, 1);
}

}  // namespace
