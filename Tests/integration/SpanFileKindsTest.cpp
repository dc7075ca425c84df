// What may stand where the span file is expected. Nothing of it must hold a process up.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "FileContent.h"
#include "HeldLock.h"
#include "JsonLines.h"
#include "ProbeProcess.h"
#include "SpanIdentifierForm.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"

namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

class SpanFileKindsTest : public testing::Test {
 protected:
  /// One process asks for its parent and traces one step.
  void Run() {
    result_ = RunProbe(directory_, {"diagnostics", "3", "parent",                       //
                                    "insert", "0", "t", "e", "s", "ParentSpanId", "0",  //
                                    "insert", "1", "t", "e", "s", "ParentSpanId", "0", "elapsed"});
    ASSERT_TRUE(Succeeded(result_));
    EXPECT_THAT(result_.Values("insert"), ElementsAre("0", "0"));
    ASSERT_EQ(result_.Values("elapsed").size(), 1U);
    EXPECT_LT(std::stoi(result_.Values("elapsed")[0]), 2000);
    const auto records = ParseJsonLines(result_.Metrics());
    ASSERT_EQ(records.size(), 1U);
    record_ = records[0];
  }

  /// The parent is the text `parent`, for the reader and for the step, which then writes its own.
  void ExpectRead(const std::string& parent) {
    EXPECT_THAT(result_.Values("parent"), ElementsAre(parent));
    EXPECT_EQ(record_.contains("parentSpanId") ? TextOf(record_, "parentSpanId") : "", parent);
    EXPECT_EQ(FileContent::Read(Path()), TextOf(record_, "spanId"));
    EXPECT_THAT(result_.diagnostics,
                MatchesRegex("[^\n]* INFO GetCurrentParentSpanId: parentSpanId = " + parent +
                             " \\[[^\n]*\n[^\n]*ResourceClear: ResourceClear [^\n]*\n"));
  }

  /// The file is out of reach: the placeholder stands for the parent, and nobody is troubled.
  void ExpectRefused() {
    EXPECT_THAT(result_.Values("parent"), ElementsAre("ParentSpanId"));
    EXPECT_EQ(TextOf(record_, "parentSpanId"), "ParentSpanId");
    EXPECT_PRED1(IsSpanIdentifier, TextOf(record_, "spanId"));
    EXPECT_THAT(result_.diagnostics, MatchesRegex("[^\n]*ResourceClear: ResourceClear [^\n]*\n"));
  }

  std::string Path() const { return directory_ / "spanId"; }

  TemporaryDirectory directory_;
  ProbeResult result_;
  boost::json::object record_;
};

TEST_F(SpanFileKindsTest, MissingFileIsCreated) {
  Run();
  ExpectRead("");
}

TEST_F(SpanFileKindsTest, EmptyFileHoldsNoParent) {
  FileContent::Write(Path(), "");
  Run();
  ExpectRead("");
}

TEST_F(SpanFileKindsTest, FileOfAnIdentifierHoldsIt) {
  FileContent::Write(Path(), "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4");
  Run();
  ExpectRead("3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4");
}

TEST_F(SpanFileKindsTest, LongFileIsReadUpTo128BytesAndReplaced) {
  FileContent::Write(Path(), std::string(200, 'x'));
  Run();
  ExpectRead(std::string(128, 'x'));
}

TEST_F(SpanFileKindsTest, FileWithANulIsReadUpToThere) {
  FileContent::Write(Path(), std::string("abc\0def", 7));
  Run();
  ExpectRead("abc");
}

TEST_F(SpanFileKindsTest, DirectoryIsRefused) {
  std::filesystem::create_directory(Path());
  Run();
  ExpectRefused();
  EXPECT_TRUE(std::filesystem::is_directory(Path()));
}

TEST_F(SpanFileKindsTest, FifoIsRefused) {
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  Run();
  ExpectRefused();
  EXPECT_TRUE(std::filesystem::is_fifo(Path()));
}

TEST_F(SpanFileKindsTest, SymbolicLinkIsRefusedAndItsTargetLeftAlone) {
  FileContent::Write(directory_ / "target", "precious");
  std::filesystem::create_symlink("target", Path());
  Run();
  ExpectRefused();
  EXPECT_EQ(FileContent::Read(directory_ / "target"), "precious");
}

TEST_F(SpanFileKindsTest, DanglingLinkIsRefusedAndItsTargetNotCreated) {
  std::filesystem::create_symlink("target", Path());
  Run();
  ExpectRefused();
  EXPECT_FALSE(std::filesystem::exists(directory_ / "target"));
}

TEST_F(SpanFileKindsTest, ProcessThatKeepsTheLockHoldsNobodyUp) {
  FileContent::Write(Path(), "abc");
  const HeldLock held(Path(), LOCK_EX);
  Run();
  ExpectRefused();
  EXPECT_EQ(FileContent::Read(Path()), "abc");
}

TEST_F(SpanFileKindsTest, ProcessThatKeepsReadingLetsOthersReadButNotWrite) {
  FileContent::Write(Path(), "abc");
  const HeldLock held(Path(), LOCK_SH);
  Run();
  EXPECT_THAT(result_.Values("parent"), ElementsAre("abc"));
  EXPECT_EQ(TextOf(record_, "parentSpanId"), "ParentSpanId");
  EXPECT_EQ(FileContent::Read(Path()), "abc");
}

// A host that may not write so much must be told, not killed by a signal. What the probe says goes
// through pipes, which no limit concerns; the limit is lifted for what a process writes as it ends.
TEST_F(SpanFileKindsTest, FileSizeLimitMakesAShortWrite) {
  const TestPipe output;
  const TestPipe diagnostics;
  result_ =
      ProbeProcess(directory_,
                   {"diagnostics", "2", "limit-file-size", "10",        //
                    "insert", "0", "t", "e", "s", "ParentSpanId", "0",  //
                    "insert", "1", "t", "e", "s", "ParentSpanId", "0", "lift-file-size-limit"},
                   output.Writer(), diagnostics.Writer())
          .Wait();
  result_.output = output.Drain();
  result_.diagnostics = diagnostics.Drain();
  ASSERT_TRUE(Succeeded(result_));
  EXPECT_THAT(result_.Values("insert"), ElementsAre("0", "0"));
  EXPECT_THAT(result_.diagnostics,
              MatchesRegex("[^\n]* ERROR InsertRecord: write failed count = 10, spanId.size = 36 "
                           "\\[Framework/VMetrics/src/DotRecord:[0-9]+\\]\n"));
  const auto records = ParseJsonLines(result_.Metrics());
  ASSERT_EQ(records.size(), 1U);
  const std::string written = FileContent::Read(Path());
  EXPECT_EQ(written.size(), 10U);
  EXPECT_EQ(written, TextOf(records[0], "spanId").substr(0, 10));
}

}  // namespace
