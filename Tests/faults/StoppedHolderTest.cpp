// A process that was stopped while it held the lock of the span file.

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <list>
#include <string>

#include "ChildProcess.h"
#include "Elapsed.h"
#include "FileContent.h"
#include "LinesOf.h"
#include "SpanIdentifierForm.h"
#include "TemporaryDirectory.h"
#include "TracedStep.h"
#include "VFileLock.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr char kExited[] = "exited with 0";
constexpr char kFirst[] = "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4";
constexpr char kSecond[] = "d091bb5c-22ae-e7e1-d5c3-1f792082352c";
constexpr long kPatienceMilliseconds = 300;
/// Half of what they would take one after the other; a busy machine has to serve each of them.
constexpr long kPatienceAmongEight = 800;

class StoppedHolderTest : public testing::Test {
 protected:
  StoppedHolderTest() {
    EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(directory_.Path()));
    EXPECT_TRUE(VPlatformConfig::SetMetricsFile(metrics_));
    FileContent::Write(span_, kFirst);
  }

  /// Locks the span file and, when the gate is opened, writes to it and goes.
  void HoldTheLock() const {
    VFileLock file("spanId");
    VFileLockGuard guard(file);
    EXPECT_TRUE(guard.LockExclusive());
    locked_.Open();
    finish_.Wait();
    EXPECT_EQ(file.Write(kSecond, sizeof kSecond - 1), 36);
  }

  /// Waits until the lock is held, and stops its holder.
  void Stop(const ChildProcess& holder) const {
    locked_.Wait();
    holder.Stop();
  }

  /// The holder goes on, and all is as if it had never been stopped.
  void ExpectEverythingWorksAfter(ChildProcess& holder) const {
    finish_.Open();
    holder.Kill(SIGCONT);
    EXPECT_EQ(holder.Wait(), kExited);
    EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), kSecond);
    EXPECT_EQ(TraceStep(), 0);
    EXPECT_PRED1(IsSpanIdentifier, FileContent::Read(span_));
    EXPECT_NE(FileContent::Read(span_), kSecond);
    EXPECT_NE(LastLine().find(std::string("\"parentSpanId\":\"") + kSecond), std::string::npos)
        << LastLine();
  }

  std::string LastLine() const { return LastLineOf(FileContent::Read(metrics_)); }

  /// Nothing was written behind the holder's back, and no parent made up.
  void ExpectStepWithoutTheFile() const {
    EXPECT_EQ(FileContent::Read(span_), kFirst);
    EXPECT_NE(LastLine().find("\"parentSpanId\":\"ParentSpanId\""), std::string::npos)
        << LastLine();
  }

  const TemporaryDirectory directory_;
  const std::string span_ = directory_ / "spanId";
  const std::string metrics_ = directory_ / "metrics";
  const ChildGate locked_;
  const ChildGate finish_;
};

TEST_F(StoppedHolderTest, ParentIsAnsweredInTime) {
  ChildProcess holder([&] { HoldTheLock(); });
  Stop(holder);
  const long time =
      MedianMilliseconds([] { EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "ParentSpanId"); });
  EXPECT_LT(time, kPatienceMilliseconds);
  std::printf("a parent is answered in %ld ms\n", time);
  EXPECT_EQ(FileContent::Read(span_), kFirst);
  ExpectEverythingWorksAfter(holder);
}

TEST_F(StoppedHolderTest, EndOfAStepGoesOnInTime) {
  ChildProcess holder([&] { HoldTheLock(); });
  Stop(holder);
  const long time = MedianMilliseconds([] { EXPECT_EQ(TraceStep(), 0); });
  EXPECT_LT(time, kPatienceMilliseconds);
  std::printf("a step ends in %ld ms\n", time);
  ExpectStepWithoutTheFile();
  ExpectEverythingWorksAfter(holder);
}

// They do not queue up behind each other.
TEST_F(StoppedHolderTest, EightProcessesGoOnInTime) {
  ChildProcess holder([&] { HoldTheLock(); });
  Stop(holder);
  std::list<ChildProcess> others;
  for (int i = 0; i < 8; ++i) {
    others.emplace_back([] {
      EXPECT_LT(MedianMilliseconds([] { EXPECT_EQ(TraceStep(), 0); }), kPatienceAmongEight);
    });
  }
  for (ChildProcess& other : others) {
    EXPECT_EQ(other.Wait(), kExited);
  }
  ExpectStepWithoutTheFile();
  ExpectEverythingWorksAfter(holder);
}

// It reads: others may read as well, but not write.
TEST_F(StoppedHolderTest, ReaderThatIsStoppedHoldsUpWritersAlone) {
  ChildProcess holder([&] {
    VFileLock file("spanId");
    VFileLockGuard guard(file);
    EXPECT_TRUE(guard.LockShared());
    locked_.Open();
    finish_.Wait();
  });
  Stop(holder);
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), kFirst);
  EXPECT_LT(MedianMilliseconds([] { EXPECT_EQ(TraceStep(), 0); }), kPatienceMilliseconds);
  ExpectStepWithoutTheFile();
  finish_.Open();
  holder.Kill(SIGCONT);
  EXPECT_EQ(holder.Wait(), kExited);
  EXPECT_EQ(TraceStep(), 0);
  EXPECT_NE(LastLine().find(kFirst), std::string::npos) << LastLine();
}

}  // namespace
