// The span file and steps that end, on a machine that fails.

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "FailEachSystemCall.h"
#include "FileContent.h"
#include "HeldLock.h"
#include "LineRemains.h"
#include "LinesOf.h"
#include "SpanIdentifierForm.h"
#include "TemporaryDirectory.h"
#include "TextMember.h"
#include "TracedStep.h"
#include "VFileLock.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

using testing::ElementsAre;

/// An identifier whose letters no real one has.
constexpr char kOld[] = "zzzzzzzz-zzzz-zzzz-zzzz-zzzzzzzzzzzz";
constexpr char kPlaceholder[] = "ParentSpanId";

bool BeginsWith(const std::string& text, const std::string& beginning) {
  return text.compare(0, beginning.size(), beginning) == 0;
}

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

class SpanFaultsTest : public testing::Test {
 protected:
  SpanFaultsTest() {
    EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(directory_.Path()));
    EXPECT_TRUE(VPlatformConfig::SetMetricsFile(metrics_));
    EXPECT_TRUE(VPlatformConfig::SetDiagnosticsFile(directory_ / "diagnostics"));
  }

  /// No look at the metrics file is due for some time.
  void Prepare(const std::string& content) {
    SystemCalls::Advance(kLookMilliseconds);
    VLogger::GetInstance().Metrics("before");
    FileContent::Write(metrics_, "");
    FileContent::Write(span_, content);
    old_ = content;
  }
  void PrepareMissing() {
    Prepare("");
    std::filesystem::remove(span_);
  }

  static void EndStep() { EXPECT_EQ(KeepingErrno(TraceStep), 0); }

  /// The next step is as any: its line whole, its parent what the file held, its identifier there.
  void ExpectNextStep() {
    const std::string parent = VMetrics::GetCurrentParentSpanId();
    EndStep();
    ExpectLastStepInFile();
    const std::string lines = FileContent::Read(metrics_);
    EXPECT_EQ(TextMember(LastLine(), "parentSpanId"), parent);
    EXPECT_EQ(lines.find("\n\n"), std::string::npos) << lines;
  }

  /// The last line is a step's, whole, and its identifier all that is in the file.
  void ExpectLastStepInFile() const {
    const std::string last = LastLine();
    EXPECT_TRUE(BeginsWith(last, "{\"eventId\":\"e\",")) << last;
    EXPECT_TRUE(EndsWith(last, "}}\n")) << last;
    EXPECT_PRED1(IsSpanIdentifier, TextMember(last, "spanId"));
    EXPECT_EQ(FileContent::Read(span_), TextMember(last, "spanId"));
  }

  std::string LastLine() const { return LastLineOf(FileContent::Read(metrics_)); }

  /// The file holds the old identifier, the new one, or what a write that came short left of both.
  void ExpectOldOrNew(const Attack& attack) const {
    const std::string content = std::filesystem::exists(span_) ? FileContent::Read(span_) : "";
    std::size_t fresh = 0;  // How far the new identifier reaches.
    while (fresh < content.size() &&
           std::string("0123456789abcdef-").find(content[fresh]) != std::string::npos &&
           (content[fresh] != '-' || fresh == 8 || fresh == 13 || fresh == 18 || fresh == 23)) {
      ++fresh;
    }
    if (fresh < 36) {
      EXPECT_EQ(content.substr(fresh), fresh < old_.size() ? old_.substr(fresh) : "") << content;
    } else {
      EXPECT_PRED1(IsSpanIdentifier, content.substr(0, 36));
      const bool uncut = content.size() == old_.size() && attack.call == SystemCall::kFtruncate;
      EXPECT_TRUE(content.size() == 36 || uncut) << content;
    }
    const bool shortWrite = attack.call == SystemCall::kPwrite && attack.fault.error == 0;
    EXPECT_TRUE(fresh == 0 || fresh == 36 || shortWrite) << content;
  }

  std::vector<std::string> AttackParent() {
    std::string parent;
    return FailEachSystemCall(
        [&] { prepare_(); },
        [&] { parent = KeepingErrno([] { return VMetrics::GetCurrentParentSpanId(); }); },
        [&](const Attack& attack) {
          EXPECT_TRUE(!attack.Passes() || parent == old_.substr(0, 128)) << parent;
          EXPECT_TRUE(parent == kPlaceholder || BeginsWith(old_.substr(0, 128), parent)) << parent;
          const bool missing = !std::filesystem::exists(span_);
          EXPECT_EQ(missing ? "" : FileContent::Read(span_), old_);
          ExpectNextStep();
        });
  }

  std::vector<std::string> AttackStep() {
    return FailEachSystemCall([&] { prepare_(); }, EndStep,
                              [&](const Attack& attack) {
                                ExpectOldOrNew(attack);
                                ExpectStepsLine(attack);
                                if (attack.Passes()) {
                                  ExpectLastStepInFile();
                                }
                                ExpectNextStep();
                              });
  }

  /// The step's line went out with its parent, or was lost where writing lines failed: no fault of
  /// the span file keeps it back.
  void ExpectStepsLine(const Attack& attack) const {
    const std::string line = FileContent::Read(metrics_);
    EXPECT_TRUE(attack.call == SystemCall::kWrite || EndsWith(line, "}}\n")) << line;
    if (!line.empty() && line.back() == '\n') {
      EXPECT_PRED1(IsSpanIdentifier, TextMember(line, "spanId"));
      const std::string parent = TextMember(line, "parentSpanId");
      EXPECT_TRUE(parent == kPlaceholder || BeginsWith(old_.substr(0, 128), parent)) << line;
    }
  }

  const TemporaryDirectory directory_;
  const std::string metrics_ = directory_ / "metrics";
  const std::string span_ = directory_ / "spanId";
  std::string old_;  ///< What the file held before the run.
  std::function<void()> prepare_ = [this] { Prepare(kOld); };
};

TEST_F(SpanFaultsTest, ParentThatIsRead) {
  EXPECT_THAT(AttackParent(), ElementsAre("open", "close", "statx", "flock", "pread"));
}

TEST_F(SpanFaultsTest, ParentFromAFileThatIsMissing) {
  prepare_ = [this] { PrepareMissing(); };
  EXPECT_THAT(AttackParent(), ElementsAre("open", "close", "statx", "fchmod", "flock"));
}

TEST_F(SpanFaultsTest, EndOfAStep) {
  EXPECT_THAT(AttackStep(), ElementsAre("open", "close", "statx", "flock", "pread", "pwrite",
                                        "write", "getrlimit"));
}

TEST_F(SpanFaultsTest, EndOfAStepWhereTheFileIsMissing) {
  prepare_ = [this] { PrepareMissing(); };
  EXPECT_THAT(AttackStep(), ElementsAre("open", "close", "statx", "fchmod", "flock", "pwrite",
                                        "write", "getrlimit"));
}

TEST_F(SpanFaultsTest, EndOfAStepWhereTheFileIsLonger) {
  prepare_ = [this] { Prepare(std::string(200, 'z')); };
  EXPECT_THAT(AttackStep(), ElementsAre("open", "close", "statx", "flock", "pread", "pwrite",
                                        "ftruncate", "write", "getrlimit"));
}

// Somebody else keeps the lock, and something else goes wrong: two locks, the line and a diagnostic
// may each take their tenth of a second.
TEST_F(SpanFaultsTest, EndOfAStepWhereTheLockIsHeld) {
  constexpr long kPatienceOfBoth = 410;
  std::optional<HeldLock> held;
  const auto prepare = [&] {
    Prepare(kOld);
    held.emplace(span_, LOCK_EX);
  };
  const auto check = [&](const Attack& attack) {
    EXPECT_EQ(FileContent::Read(span_), kOld);
    ExpectStepsLine(attack);
    const std::string line = FileContent::Read(metrics_);
    if (!line.empty() && line.back() == '\n') {
      EXPECT_EQ(TextMember(line, "parentSpanId"), kPlaceholder);
    }
    held.reset();
    ExpectNextStep();
  };
  EXPECT_THAT(FailEachSystemCall(prepare, EndStep, check, kPatienceOfBoth),
              ElementsAre("open", "close", "flock", "write", "nanosleep"));
}

// What Write returns is what it did: all, a part, or nothing that counts.
TEST_F(SpanFaultsTest, FileThatIsRewrittenAndReadUnderOneLock) {
  const std::string path = directory_ / "file";
  const std::string before(1000, 'b');
  const std::string text(600, 't');
  int written = 0;
  bool locked = false;
  std::string read;
  const auto act = [&] {
    errno = EDOM;
    VFileLock file(path);
    VFileLockGuard guard(file);
    locked = guard.LockExclusive();
    written = file.Write(text.data(), static_cast<int>(text.size()));
    read.assign(1000, '\0');
    const int count = file.Read(read.data(), 1000);
    read.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    EXPECT_EQ(errno, EDOM);
  };
  const auto check = [&](const Attack& attack) {
    const std::string content = FileContent::Read(path);
    const std::string both = text + before.substr(text.size());
    if (written == static_cast<int>(text.size())) {
      EXPECT_EQ(content, text);
    } else if (written >= 0) {
      const auto part = static_cast<std::size_t>(written);
      EXPECT_EQ(content, text.substr(0, part) + before.substr(part));
    } else {
      EXPECT_TRUE(content == before || content == both);
    }
    EXPECT_TRUE(locked || written == -1);
    EXPECT_TRUE(BeginsWith(content, read));
    EXPECT_TRUE(!locked || attack.call == SystemCall::kPread || read == content);
    VFileLock file(path);
    VFileLockGuard guard(file);
    EXPECT_TRUE(guard.LockExclusive());
    EXPECT_EQ(file.Write("next", 4), 4);
    EXPECT_EQ(FileContent::Read(path), "next");
  };
  EXPECT_THAT(
      FailEachSystemCall([&] { FileContent::Write(path, before); }, act, check),
      ElementsAre("open", "close", "statx", "flock", "pread", "pwrite", "ftruncate", "getrlimit"));
}

}  // namespace
