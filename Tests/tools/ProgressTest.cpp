#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "FileContent.h"
#include "Progress.h"
#include "TemporaryDirectory.h"
#include "Terminal.h"
#include "Text.h"

namespace vmetrics {
namespace {

using std::chrono::milliseconds;

Progress::Clock::time_point now;

Progress::Clock::time_point Now() { return now; }

/// A terminal, which shows what is written to it to the test alone.
class TestTerminal {
 public:
  TestTerminal() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {
    grantpt(master_);
    unlockpt(master_);
    slave_ = open(ptsname(master_), O_RDWR | O_NOCTTY | O_CLOEXEC);
  }
  ~TestTerminal() {
    close(slave_);
    close(master_);
  }
  TestTerminal(const TestTerminal&) = delete;
  TestTerminal& operator=(const TestTerminal&) = delete;

  int Descriptor() const { return slave_; }

  /// All that was written to it since the last time.
  std::string Shown() const {
    char text[1000];
    const ssize_t size = read(master_, text, sizeof text);
    return size > 0 ? std::string(text, static_cast<std::size_t>(size)) : std::string();
  }

 private:
  const int master_;
  int slave_;
};

/// One of the standard descriptors leads elsewhere as long as this lives.
class Redirection {
 public:
  Redirection(int descriptor, int to)
      : descriptor_(descriptor), saved_(fcntl(descriptor, F_DUPFD_CLOEXEC, 0)) {
    dup2(to, descriptor_);
  }
  ~Redirection() {
    std::fflush(nullptr);
    dup2(saved_, descriptor_);
    close(saved_);
  }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;

 private:
  const int descriptor_;
  const int saved_;
};

class RedirectionToFile {
 public:
  RedirectionToFile(int descriptor, const std::string& name)
      : file_(open(name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600)),
        redirection_(descriptor, file_) {
    close(file_);
  }

 private:
  const int file_;
  const Redirection redirection_;
};

void ReadAll(Input& input) {
  while (!input.Read().empty()) {
  }
}

class ProgressTest : public testing::Test {
 protected:
  ProgressTest() { now = {}; }

  static std::string LogIn(const TemporaryDirectory& directory) {
    FileContent::Write(directory / "log", std::string(3000000, '\n'));
    return directory / "log";
  }

  /// The line that shows the file with these words behind its name.
  std::string LineWith(const std::string& words) const {
    return "\r" + Fitted(name_, 40) + " " + words + "\033[K";
  }

  /// Shows a progress that began a second ago, in front of what the test is about.
  void ShowOnce(Progress& progress) {
    now += milliseconds(1000);
    progress.Show(input_);
    terminal_.Shown();
  }

  const TemporaryDirectory directory_;
  const std::string name_ = LogIn(directory_);
  const TestTerminal terminal_;
  const Redirection error_{STDERR_FILENO, terminal_.Descriptor()};
  Input input_{name_};
};

constexpr const char* kRemoved = "\r\033[K";

TEST_F(ProgressTest, NothingIsShownInTheFirstSecond) {
  Progress progress(Now);
  now += milliseconds(999);
  progress.Show(input_);
  EXPECT_EQ(terminal_.Shown(), "");
}

TEST_F(ProgressTest, ShareOfAFileIsShown) {
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input_);
  EXPECT_EQ(terminal_.Shown(), LineWith("  0 % of 3 MB"));
  ReadAll(input_);
  now += milliseconds(200);
  progress.Show(input_);
  EXPECT_EQ(terminal_.Shown(), LineWith("100 % of 3 MB"));
}

TEST_F(ProgressTest, MegabytesOfAPipeAreShown) {
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  ASSERT_GE(fcntl(ends[1], F_SETPIPE_SZ, 1 << 20), 1 << 20);
  ASSERT_EQ(write(ends[1], std::string(1000000, '\n').data(), 1000000), 1000000);
  close(ends[1]);
  const Redirection standardInput(STDIN_FILENO, ends[0]);
  close(ends[0]);
  Input input("-");
  ReadAll(input);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  EXPECT_EQ(terminal_.Shown(), "\r" + Fitted("standard input", 40) + " 1 MB\033[K");
}

TEST_F(ProgressTest, AtMostFiveLinesASecondAreShown) {
  Progress progress(Now);
  ShowOnce(progress);
  now += milliseconds(199);
  progress.Show(input_);
  EXPECT_EQ(terminal_.Shown(), "");
  now += milliseconds(1);
  progress.Show(input_);
  EXPECT_EQ(terminal_.Shown(), LineWith("  0 % of 3 MB"));
}

TEST_F(ProgressTest, LineIsRemovedInTheEnd) {
  {
    Progress progress(Now);
    ShowOnce(progress);
  }
  EXPECT_EQ(terminal_.Shown(), kRemoved);
}

TEST_F(ProgressTest, LineIsRemovedBeforeAComplaint) {
  Progress progress(Now);
  ShowOnce(progress);
  Complain("bad");
  EXPECT_EQ(terminal_.Shown(), std::string(kRemoved) + "vmetrics: bad\r\n");
}

TEST_F(ProgressTest, LineIsRemovedBeforeOutputOnATerminal) {
  const Redirection output(STDOUT_FILENO, terminal_.Descriptor());
  Progress progress(Now);
  ShowOnce(progress);
  Write("result");
  EXPECT_EQ(terminal_.Shown(), kRemoved);
}

TEST_F(ProgressTest, LineStaysWhereOutputGoesElsewhere) {
  const RedirectionToFile output(STDOUT_FILENO, directory_ / "output");
  Progress progress(Now);
  ShowOnce(progress);
  Write("result");
  EXPECT_EQ(terminal_.Shown(), "");
}

TEST_F(ProgressTest, NothingIsShownWhereStandardErrorIsNoTerminal) {
  const RedirectionToFile error(STDERR_FILENO, directory_ / "error");
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input_);
  EXPECT_EQ(FileContent::Read(directory_ / "error"), "");
}

}  // namespace
}  // namespace vmetrics
