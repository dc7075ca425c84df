#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "FileContent.h"
#include "JsonLines.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"

namespace {

using testing::ElementsAre;

/// The commands that trace one step, its parent taken from the span file.
std::vector<std::string> Step(const std::string& name) {
  return {"insert", "0", "t", "e", name, "ParentSpanId", "0",  //
          "insert", "1", "t", "e", name, "ParentSpanId", "0"};
}

std::vector<std::string> operator+(std::vector<std::string> first,
                                   const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST(SpanChainTest, EachProcessesStepIsTheParentOfTheNext) {
  const TemporaryDirectory directory;
  std::string metrics;
  constexpr int kProcesses = 7;
  for (int i = 0; i < kProcesses; ++i) {
    const ProbeResult result = RunProbe(directory, Step("step " + std::to_string(i)));
    ASSERT_TRUE(Succeeded(result));
    EXPECT_THAT(result.Values("insert"), ElementsAre("0", "0"));
    metrics += result.Metrics();
  }
  const auto records = ParseJsonLines(metrics);
  ASSERT_EQ(records.size(), static_cast<std::size_t>(kProcesses));
  EXPECT_EQ(records[0].if_contains("parentSpanId"), nullptr);
  for (std::size_t i = 1; i < records.size(); ++i) {
    EXPECT_EQ(TextOf(records[i], "parentSpanId"), TextOf(records[i - 1], "spanId")) << i;
  }
}

TEST(SpanChainTest, FileHoldsTheLastIdentifierAndIsItsOwnersAlone) {
  const TemporaryDirectory directory;
  const ProbeResult result = RunProbe(directory, Step("a") + Step("b"));
  ASSERT_TRUE(Succeeded(result));
  const auto records = ParseJsonLines(result.Metrics());
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(FileContent::Read(directory / "spanId"), TextOf(records[1], "spanId"));
  struct stat status = {};
  ASSERT_EQ(stat((directory / "spanId").c_str(), &status), 0);
  EXPECT_EQ(status.st_size, 36);
  EXPECT_EQ(status.st_mode, static_cast<mode_t>(S_IFREG | 0600));
}

TEST(SpanChainTest, AnotherProcessReadsTheCurrentParent) {
  const TemporaryDirectory directory;
  const ProbeResult tracing = RunProbe(directory, Step("a"));
  const ProbeResult reading = RunProbe(directory, {"parent"});
  const auto records = ParseJsonLines(tracing.Metrics());
  ASSERT_EQ(records.size(), 1U);
  EXPECT_THAT(reading.Values("parent"), ElementsAre(TextOf(records[0], "spanId")));
}

TEST(SpanChainTest, ReadingTheCurrentParentIsTold) {
  const TemporaryDirectory directory;
  FileContent::Write(directory / "spanId", "00000000-0000-4000-8000-000000000001");
  const ProbeResult reading = RunProbe(directory, {"diagnostics", "3", "parent"});
  EXPECT_THAT(reading.diagnostics,
              testing::MatchesRegex(".* INFO GetCurrentParentSpanId: parentSpanId = "
                                    "00000000-0000-4000-8000-000000000001 "
                                    "\\[Framework/VMetrics/src/DotRecord:[0-9]+\\]\n"));
}

// The file is found through the directory that the host names, wherever the processes stand.
TEST(SpanChainTest, ProcessesMeetInTheDirectoryThatTheHostNames) {
  const TemporaryDirectory meeting;
  const TemporaryDirectory first;
  const TemporaryDirectory second;
  const std::vector<std::string> locks{"locks", meeting.Path()};
  const ProbeResult tracing = RunProbe(first, locks + Step("a"));
  const ProbeResult reading = RunProbe(second, locks + std::vector<std::string>{"parent"});
  ASSERT_TRUE(Succeeded(tracing));
  EXPECT_THAT(reading.Values("parent"), ElementsAre(FileContent::Read(meeting / "spanId")));
  EXPECT_FALSE(std::filesystem::exists(first / "spanId"));
}

// A step that surrounds others is the child of the last of them: the file knows no nesting.
TEST(SpanChainTest, ParentIsTheStepThatEndedLast) {
  const TemporaryDirectory directory;
  const std::vector<std::string> outerStarts{"insert", "0", "t", "e", "outer", "", "0"};
  const std::vector<std::string> outerEnds{"insert", "1", "t", "e", "outer", "ParentSpanId", "0"};
  const ProbeResult result =
      RunProbe(directory, outerStarts + Step("first") + Step("second") + outerEnds);
  const auto records = ParseJsonLines(result.Metrics());
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(TextOf(records[2], "parentSpanId"), TextOf(records[1], "spanId"));
}

}  // namespace
