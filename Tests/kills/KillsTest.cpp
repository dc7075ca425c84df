// Processes that write and trace, killed at random instants.
//
// How many kills, and which, the environment says: VMETRICS_KILLS (500 without it) and
// VMETRICS_KILLS_SEED.

#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "Acknowledgements.h"
#include "ChildProcess.h"
#include "FileContent.h"
#include "KilledWriter.h"
#include "SpanIdentifierForm.h"
#include "TemporaryDirectory.h"
#include "VFileLock.h"
#include "WritersLog.h"

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr int kProcesses = 8;
/// After so many kills everything is checked and begins anew, before the file gets too long.
constexpr int kKillsPerRound = 250;
constexpr int kLongestPauseMicroseconds = 500;

int FromEnvironment(const char* name, int otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

/// What is told in the end.
struct Figures {
  std::uint64_t kills = 0;
  std::uint64_t acknowledged = 0;
  std::uint64_t unacknowledged = 0;  ///< Whole all the same: killed between write and count.
  std::uint64_t steps = 0;
  std::uint64_t stepsWithoutParent = 0;
  vmetrics::LineRecovery::Counts texts;
  microseconds longestWait{0};

  void Add(const vmetrics::LineRecovery::Counts& counts) {
    texts.whole += counts.whole;
    texts.recovered += counts.recovered;
    texts.fragments += counts.fragments;
  }
};

std::ostream& operator<<(std::ostream& out, const Figures& figures) {
  return out << figures.kills << " kills, " << figures.acknowledged << " lines acknowledged, "
             << figures.texts.whole + figures.texts.recovered << " read ("
             << figures.texts.recovered << " of them out of glued lines, " << figures.unacknowledged
             << " not acknowledged), " << figures.texts.fragments << " fragments, " << figures.steps
             << " steps (" << figures.stepsWithoutParent
             << " refused the lock), longest wait for the lock " << figures.longestWait.count()
             << " us";
}

/// The span file as a test looks at it between kills.
class SpanFileWatch {
 public:
  explicit SpanFileWatch(std::string path) : path_(std::move(path)) {}

  /// Looks without a lock and with one, which must be had in time. Returns how long that took.
  microseconds Look() {
    if (std::filesystem::exists(path_)) {
      Expect(FileContent::Read(path_));
    }
    const Clock::time_point start = Clock::now();
    VFileLock file(path_);
    VFileLockGuard guard(file);
    while (!guard.LockExclusive()) {
      if (Clock::now() - start > kPatience) {
        ADD_FAILURE() << "the lock is stuck";
        return kPatience;
      }
    }
    const auto waited = std::chrono::duration_cast<microseconds>(Clock::now() - start);
    char text[128];
    const int length = file.Read(text, sizeof text);
    Expect(std::string(text, static_cast<std::size_t>(std::max(length, 0))));
    return waited;
  }

  bool HeldAnIdentifier() const { return held_; }

 private:
  static constexpr milliseconds kPatience{10'000};

  void Expect(const std::string& content) {
    held_ = held_ || !content.empty();
    if (held_) {
      EXPECT_PRED1(IsSpanIdentifier, content);
    }
  }

  const std::string path_;
  bool held_ = false;
};

/// Some kills among processes that share a directory of their own.
class KillRound {
 public:
  KillRound(int kills, std::mt19937& random)
      : kills_(kills), random_(random), acknowledgements_(kProcesses + kills) {}

  void Run(Figures& figures) {
    SpanFileWatch watch(directory_ / "spanId");
    for (auto& process : processes_) {
      Start(process);
    }
    for (int i = 0; i < kills_; ++i) {
      std::this_thread::sleep_for(microseconds(random_() % kLongestPauseMicroseconds));
      auto& process = processes_[random_() % kProcesses];
      Kill(process);
      figures.longestWait = std::max(figures.longestWait, watch.Look());
      Start(process);
    }
    for (auto& process : processes_) {
      Kill(process);
    }
    watch.Look();
    EXPECT_TRUE(watch.HeldAnIdentifier());
    CheckLog(figures);
  }

 private:
  using Process = std::unique_ptr<ChildProcess>;

  void Start(Process& process) {
    const int writer = started_++;
    process = std::make_unique<ChildProcess>([this, writer] {
      KilledWriter::Run(directory_.Path(), writer, acknowledgements_.Of(writer));
    });
  }

  static void Kill(Process& process) {
    process->Kill(SIGKILL);
    EXPECT_EQ(process->Wait(), "killed by signal 9");
  }

  void CheckLog(Figures& figures) {
    const WritersLog log(directory_ / "metrics", started_);
    for (int writer = 0; writer < started_; ++writer) {
      const int acknowledged = acknowledgements_.Of(writer);
      const int surplus = log.Lines(writer) - acknowledged;
      EXPECT_GE(surplus, 0) << "lines lost of writer " << writer;
      EXPECT_LE(surplus, 1) << "lines that writer " << writer << " had not begun";
      figures.acknowledged += static_cast<std::uint64_t>(acknowledged);
      figures.unacknowledged += static_cast<std::uint64_t>(surplus);
    }
    EXPECT_LE(log.Counts().fragments, static_cast<std::uint64_t>(started_));
    EXPECT_LE(log.ParentsWithoutStep(), static_cast<std::size_t>(started_));
    EXPECT_EQ(FileContent::Read(directory_ / "diagnostics"), "");
    figures.kills += static_cast<std::uint64_t>(started_);
    figures.steps += static_cast<std::uint64_t>(log.Steps());
    figures.stepsWithoutParent += static_cast<std::uint64_t>(log.StepsWithoutParent());
    figures.Add(log.Counts());
  }

  const TemporaryDirectory directory_;
  const int kills_;
  std::mt19937& random_;
  Acknowledgements acknowledgements_;
  Process processes_[kProcesses];
  int started_ = 0;
};

// What a kill may cost is the one line that it cuts. Everything acknowledged is read again, and the
// span file and its lock are as if nobody had been killed.
TEST(KillsTest, KillCostsNoMoreThanTheLineThatItCuts) {
  const int kills = FromEnvironment("VMETRICS_KILLS", 500);
  const int seed = FromEnvironment("VMETRICS_KILLS_SEED", 1);
  std::mt19937 random(static_cast<std::uint32_t>(seed));
  Figures figures;
  for (int left = kills; left > 0 && !HasFailure(); left -= kKillsPerRound) {
    KillRound(std::min(left, kKillsPerRound), random).Run(figures);
  }
  std::cout << figures << '\n';
  // Hardly a step is refused the lock, but some are where a busy machine stops who has it.
  EXPECT_LE(figures.stepsWithoutParent, 1 + figures.steps / 10);
  // Of a hundred kills about three cut a line. Without any, nothing was shown.
  EXPECT_GT(figures.texts.fragments, 0U);
}

}  // namespace
