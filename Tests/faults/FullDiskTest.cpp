// Lines and span files where there is no room for them.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "ChildProcess.h"
#include "FileContent.h"
#include "FullDisk.h"
#include "LinesOf.h"
#include "SpanIdentifierForm.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"
#include "TracedStep.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr int kMayNotMount = 77;

/// Line `number` of a test, `length` bytes long.
std::string Line(int number, std::size_t length) {
  std::string line = "line " + std::to_string(number) + " ";
  line.resize(length, static_cast<char>('a' + number % 26));
  return line;
}

void Write(const std::string& line) { VLogger::GetInstance().Metrics("%s", line.c_str()); }

/// Runs each test in a process whose metrics file and span file lie on the disk. Its diagnostics go
/// through a pipe, which always has room.
template <typename Disk>
class FullDiskTest : public testing::Test {
 protected:
  void Run(const std::function<void(const Disk&)>& body) {
    std::filesystem::create_directory(root_);
    const std::string end = ChildProcess::Run([&] {
      const Disk disk(root_);
      if (!disk.Mounted()) {
        _exit(kMayNotMount);
      }
      EXPECT_EQ(dup2(diagnostics_.Writer(), STDERR_FILENO), STDERR_FILENO);
      EXPECT_TRUE(VPlatformConfig::SetMetricsFile(metrics_));
      EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(root_));
      body(disk);
    });
    if (end == "exited with " + std::to_string(kMayNotMount)) {
      GTEST_SKIP() << "this user may not mount a file system";
    }
    EXPECT_EQ(end, "exited with 0") << diagnostics_.Drain();
  }

  /// Writes `count` lines of `length` bytes to the full disk, and one more when it is free again.
  void LoseLines(const Disk& disk, int count, std::size_t length) const {
    FileContent::Write(metrics_, "before\n");  // Its last page still has room.
    disk.Fill();
    for (int number = 0; number < count; ++number) {
      Write(Line(number, length));
    }
    disk.Free();
    Write("next");
    ExpectToldOf(count - ExpectOneCut(count, length));
  }

  /// The file holds whole lines in their order, the part of one that was cut, and then the line
  /// that came next. Returns how many of the `count` are whole.
  int ExpectOneCut(int count, std::size_t length) const {
    std::vector<std::string> lines = LinesOf(FileContent::Read(metrics_));
    if (lines.size() < 3) {
      ADD_FAILURE() << testing::PrintToString(lines);
      return 0;
    }
    EXPECT_EQ(lines.front(), "before");
    EXPECT_EQ(lines.back(), "next");
    lines.erase(lines.begin());
    lines.pop_back();
    const std::string cut = lines.back();
    lines.pop_back();
    const int whole = static_cast<int>(lines.size());
    EXPECT_LT(whole, count);
    for (int number = 0; number < whole; ++number) {
      EXPECT_EQ(lines[static_cast<std::size_t>(number)], Line(number, length));
    }
    EXPECT_GT(cut.size(), 0U);
    EXPECT_LT(cut.size(), length);
    EXPECT_EQ(cut, Line(whole, length).substr(0, cut.size()));
    return whole;
  }

  /// What is lost was told when it began and when it was over, and nothing of the lines.
  void ExpectToldOf(int lost) const {
    const std::vector<std::string> told = LinesOf(diagnostics_.Drain());
    ASSERT_EQ(told.size(), 2U) << testing::PrintToString(told);
    const std::string begun =
        std::string("metrics channel: a line is lost, maybe more to come: ") + Disk::kError + " [";
    EXPECT_NE(told[0].find(" ERROR Metrics: " + begun), std::string::npos) << told[0];
    const std::string over =
        " WARNING Metrics: metrics channel: written to again, lines lost: " + std::to_string(lost) +
        " [";
    EXPECT_NE(told[1].find(over), std::string::npos) << told[1] << lost;
  }

  const TemporaryDirectory directory_;
  const std::string root_ = directory_ / "disk";
  const std::string metrics_ = root_ + "/metrics";
  const std::string span_ = root_ + "/spanId";
  const TestPipe diagnostics_;
};

using Disks = testing::Types<LimitedDisk, SmallDisk>;
class DiskNames {
 public:
  template <typename Disk>
  static std::string GetName(int) {
    return std::is_same_v<Disk, LimitedDisk> ? "SizeLimit" : "SmallDisk";
  }
};
TYPED_TEST_SUITE(FullDiskTest, Disks, DiskNames);

TYPED_TEST(FullDiskTest, LossIsToldOnceAndTheNextLineGoesOut) {
  this->Run([this](const TypeParam& disk) { this->LoseLines(disk, 2000, 300); });
}

TYPED_TEST(FullDiskTest, LossOfLongLinesToo) {
  this->Run([this](const TypeParam& disk) { this->LoseLines(disk, 50, 50'001); });
}

TYPED_TEST(FullDiskTest, DiskThatFillsAgainAndAgain) {
  this->Run([this](const TypeParam& disk) {
    for (int round = 0; round < 50; ++round) {
      this->LoseLines(disk, 100, 300);
    }
  });
}

TYPED_TEST(FullDiskTest, HostIsNotTroubled) {
  this->Run([this](const TypeParam& disk) {
    EXPECT_EQ(TraceStep(), 0);
    disk.Fill();
    for (int i = 0; i < 100; ++i) {
      EXPECT_EQ(SendTransChangeToMetrics("reason", -3, 250), 0);
      EXPECT_EQ(TraceStep(), 0);
    }
    disk.Free();
    EXPECT_EQ(TraceStep(), 0);
    EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), FileContent::Read(this->span_));
    EXPECT_PRED1(IsSpanIdentifier, FileContent::Read(this->span_));
  });
}

TYPED_TEST(FullDiskTest, DiagnosticsResumeAsWell) {
  this->Run([this](const TypeParam& disk) {
    const std::string path = this->root_ + "/diagnostics";
    EXPECT_TRUE(VPlatformConfig::SetDiagnosticsFile(path));
    const auto log = [](const std::string& text) {
      VLogger::GetInstance().Log("file", 7, "Function", " ", "", 1, "%s", text.c_str());
    };
    disk.Fill();
    for (int i = 0; i < 100; ++i) {
      log(Line(i, 300));
    }
    disk.Free();
    log("next");
    const std::vector<std::string> lines = LinesOf(FileContent::Read(path));
    ASSERT_LT(lines.size(), 100U);
    ASSERT_GT(lines.size(), 0U);
    EXPECT_EQ(lines.back().substr(24), " ERROR Function: next [file:7]");
  });
}

using FullSmallDiskTest = FullDiskTest<SmallDisk>;

// Overwriting takes no room: who has a span file keeps the chain.
TEST_F(FullSmallDiskTest, ChainGoesOnInAFileThatIsThere) {
  Run([this](const SmallDisk& disk) {
    EXPECT_EQ(TraceStep(), 0);
    disk.Fill();
    for (int i = 0; i < 10; ++i) {
      const std::string before = FileContent::Read(span_);
      EXPECT_EQ(TraceStep(), 0);
      EXPECT_PRED1(IsSpanIdentifier, FileContent::Read(span_));
      EXPECT_NE(FileContent::Read(span_), before);
    }
    EXPECT_EQ(diagnostics_.Drain().find("write failed"), std::string::npos);
  });
}

TEST_F(FullSmallDiskTest, ChainBeginsWhenThereIsRoom) {
  Run([this](const SmallDisk& disk) {
    Write("text");  // So that the metrics file has room for the step's line.
    disk.Fill();
    EXPECT_EQ(TraceStep(), 0);
    const std::string told = diagnostics_.Drain();
    EXPECT_NE(told.find(" ERROR InsertRecord: write failed count = -1, spanId.size = 36 ["),
              std::string::npos)
        << told;
    EXPECT_EQ(FileContent::Read(span_), "");
    EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "");
    disk.Free();
    EXPECT_EQ(TraceStep(), 0);
    EXPECT_PRED1(IsSpanIdentifier, FileContent::Read(span_));
    EXPECT_EQ(diagnostics_.Drain(), "");
  });
}

}  // namespace
