// Lines of both channels of the logger, to files, on a machine that fails.

#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "FailEachSystemCall.h"
#include "FileContent.h"
#include "FileSizeLimit.h"
#include "LineRemains.h"
#include "NonRegularFiles.h"
#include "TemporaryDirectory.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// `text` with a zero for each number, as times differ from run to run.
std::string WithoutNumbers(const std::string& text) {
  std::string without;
  for (const char c : text) {
    const bool digit = c >= '0' && c <= '9';
    if (!digit || without.empty() || without.back() != '0') {
      without += digit ? '0' : c;
    }
  }
  return without;
}

class LineFaultsTest : public testing::Test {
 protected:
  LineFaultsTest() {
    EXPECT_TRUE(VPlatformConfig::SetMetricsFile(metrics_));
    EXPECT_TRUE(VPlatformConfig::SetDiagnosticsFile(diagnostics_));
  }

  /// One line in the metrics file, and no look at it due for some time.
  void Prepare() const {
    FileContent::Write(metrics_, "");
    FileContent::Write(diagnostics_, "");
    SystemCalls::Advance(kLookMilliseconds);
    Write("before");
  }

  static void Write(const std::string& line) {
    KeepingErrno([&] { VLogger::GetInstance().Metrics("%s", line.c_str()); });
  }

  /// The next line goes out whole, and a loss was counted.
  void ExpectNextLine(const std::string& line) const {
    Write("next");
    const std::string content = FileContent::Read(metrics_);
    EXPECT_TRUE(HoldsWholeLines(content, "before\n", line, "next"));
    if (content.find(line + "\n") == std::string::npos) {
      ExpectLossTold();
    }
  }

  /// That a line was lost is told now, with their number, on a line of its own.
  void ExpectLossTold() const {
    const std::string told = FileContent::Read(diagnostics_);
    const std::string over = "Z WARNING Metrics: metrics channel: written to again, lines lost: 1 ";
    const std::size_t at = told.find(over);
    ASSERT_NE(at, std::string::npos) << told;
    EXPECT_EQ(told.find(over, at + 1), std::string::npos) << told;
    const std::size_t begin = told.rfind('\n', at) + 1;  // 0 where there is no line before.
    EXPECT_EQ(at - begin, sizeof "2026-03-01T09:30:00.250" - 1) << told;
    EXPECT_THAT(told, Not(HasSubstr("secret")));
  }

  /// Attacks the writing of `line`; returns the calls that it makes.
  std::vector<std::string> Attack(const std::string& line, long pause = 0) const {
    return FailEachSystemCall(
        [&] {
          Prepare();
          SystemCalls::Advance(pause);
        },
        [&] { Write(line); },
        [&](const auto& attack) {
          ExpectNextLine(line);
          if (attack.Passes()) {
            EXPECT_EQ(FileContent::Read(metrics_), "before\n" + line + "\nnext\n");
            EXPECT_EQ(FileContent::Read(diagnostics_), "");
          }
        });
  }

  const TemporaryDirectory directory_;
  const std::string metrics_ = directory_ / "metrics";
  const std::string diagnostics_ = directory_ / "diagnostics";
};

TEST_F(LineFaultsTest, ShortLine) { EXPECT_THAT(Attack("secret"), ElementsAre("write")); }

TEST_F(LineFaultsTest, LineThatIsGatheredByTheSystem) {
  EXPECT_THAT(Attack("secret" + std::string(5000, 'x')), ElementsAre("writev"));
}

TEST_F(LineFaultsTest, LineAtALookAtTheFile) {
  EXPECT_THAT(Attack("secret", kLookMilliseconds),
              ElementsAre("fstat", "lstat", "write", "getrlimit"));
}

TEST_F(LineFaultsTest, LineUnderASizeLimit) {
  FileSizeLimit::Set(1 << 30);
  EXPECT_TRUE(VPlatformConfig::SetMetricsFile(metrics_));
  EXPECT_THAT(Attack("secret"), ElementsAre("write"));
  FileSizeLimit::Lift();
}

TEST_F(LineFaultsTest, EventThatIsSent) {
  const auto send = [] {
    EXPECT_EQ(KeepingErrno([] { return SendTransChangeToMetrics("secret", -3, 250); }), 0);
  };
  Prepare();
  send();
  const std::string clean = WithoutNumbers(FileContent::Read(metrics_));
  ASSERT_THAT(clean, AllOf(StartsWith("before\n{"), EndsWith("}}\n")));
  const std::string line = clean.substr(7, clean.size() - 8);
  const auto check = [&](const auto& attack) {
    Write("next");
    const std::string content = WithoutNumbers(FileContent::Read(metrics_));
    EXPECT_TRUE(HoldsWholeLines(content, "before\n", line, "next"));
    const bool lost = content.find(line + "\n") == std::string::npos;
    EXPECT_FALSE(lost && attack.Passes());
    if (lost) {
      ExpectLossTold();
    }
  };
  EXPECT_THAT(FailEachSystemCall([&] { Prepare(); }, send, check), ElementsAre("write"));
}

TEST_F(LineFaultsTest, Diagnostic) {
  const auto log = [](const char* message) {
    KeepingErrno(
        [&] { VLogger::GetInstance().Log("file", 7, "Function", " ", "", 1, "%s", message); });
  };
  const std::string head = "0-0-0T0:0:0.0Z ERROR Function: ";
  const auto check = [&](const auto&) {
    log("next");
    EXPECT_TRUE(HoldsWholeLines(WithoutNumbers(FileContent::Read(diagnostics_)), "",
                                head + "message [file:0]", head + "next [file:0]"));
  };
  EXPECT_THAT(FailEachSystemCall([&] { Prepare(); }, [&] { log("message"); }, check),
              ElementsAre("fstat", "lstat", "write", "getrlimit"));
}

// What went to the file that was moved away stays there; after the next look, lines are in the new.
TEST_F(LineFaultsTest, LineAfterTheFileWasMovedAway) {
  const std::string moved = directory_ / "moved";
  const std::string line = "secret";
  const auto prepare = [&] {
    Prepare();
    ASSERT_EQ(std::rename(metrics_.c_str(), moved.c_str()), 0);
    SystemCalls::Advance(kLookMilliseconds);
  };
  const auto check = [&](const auto& attack) {
    SystemCalls::Advance(kLookMilliseconds);
    Write("next");
    const std::string old = FileContent::Read(moved);
    EXPECT_EQ(old, ("before\n" + line + "\n").substr(0, old.size()));
    EXPECT_GE(old.size(), 7U);
    const std::string content = FileContent::Read(metrics_);
    EXPECT_TRUE(HoldsWholeLines(content, "", line, "next"));
    EXPECT_TRUE(!attack.Passes() || content == line + "\nnext\n") << content;
    if (old.find(line + "\n") == std::string::npos &&
        content.find(line + "\n") == std::string::npos) {
      ExpectLossTold();
    }
  };
  EXPECT_THAT(FailEachSystemCall(
                  prepare, [&] { Write(line); }, check),
              ElementsAre("open", "close", "fstat", "lstat", "dup3", "write", "getrlimit"));
}

// Lines go on to the file that was moved away, until a file can be made in its place.
TEST_F(LineFaultsTest, WhatTookThePlaceOfTheFileIsRefused) {
  const std::string moved = directory_ / "moved";
  const NonRegularFiles files;
  for (const std::string& name : files.Names()) {
    SCOPED_TRACE(name);
    if (name == "/dev/null") {
      continue;  // It stays where it is.
    }
    Prepare();
    ASSERT_EQ(std::rename(metrics_.c_str(), moved.c_str()), 0);
    ASSERT_EQ(std::rename(name.c_str(), metrics_.c_str()), 0);
    SystemCalls::Advance(kLookMilliseconds);
    Write("line");
    EXPECT_EQ(FileContent::Read(moved), "before\nline\n");
    std::filesystem::remove(metrics_);
    SystemCalls::Advance(kLookMilliseconds);
    Write("next");
    EXPECT_EQ(FileContent::Read(metrics_), "next\n");
  }
  EXPECT_TRUE(files.TargetsUntouched());
}

}  // namespace
