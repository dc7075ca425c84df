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

class ProgressTest : public testing::Test {
 protected:
  ProgressTest() {
    now = {};
    FileContent::Write(name_, std::string(3000000, '\n'));
  }

  /// The line that shows the file with these words behind its name.
  std::string LineWith(const std::string& words) const {
    return "\r" + Fitted(name_, 40) + " " + words + "\033[K";
  }

  const TemporaryDirectory directory_;
  const std::string name_ = directory_ / "log";
  const TestTerminal terminal_;
  const Redirection error_{STDERR_FILENO, terminal_.Descriptor()};
};

constexpr const char* kRemoved = "\r\033[K";

TEST_F(ProgressTest, NothingIsShownInTheFirstSecond) {
  const Input input(name_);
  Progress progress(Now);
  now += milliseconds(999);
  progress.Show(input);
  EXPECT_EQ(terminal_.Shown(), "");
}

TEST_F(ProgressTest, ShareOfAFileIsShown) {
  Input input(name_);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  EXPECT_EQ(terminal_.Shown(), LineWith("  0 % of 3 MB"));
  while (!input.Read().empty()) {
  }
  now += milliseconds(200);
  progress.Show(input);
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
  while (!input.Read().empty()) {
  }
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  EXPECT_EQ(terminal_.Shown(), "\r" + Fitted("standard input", 40) + " 1 MB\033[K");
}

TEST_F(ProgressTest, AtMostFiveLinesASecondAreShown) {
  const Input input(name_);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  terminal_.Shown();
  now += milliseconds(199);
  progress.Show(input);
  EXPECT_EQ(terminal_.Shown(), "");
  now += milliseconds(1);
  progress.Show(input);
  EXPECT_EQ(terminal_.Shown(), LineWith("  0 % of 3 MB"));
}

TEST_F(ProgressTest, LineIsRemovedInTheEnd) {
  {
    const Input input(name_);
    Progress progress(Now);
    now += milliseconds(1000);
    progress.Show(input);
    terminal_.Shown();
  }
  EXPECT_EQ(terminal_.Shown(), kRemoved);
}

TEST_F(ProgressTest, LineIsRemovedBeforeAComplaint) {
  const Input input(name_);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  terminal_.Shown();
  Complain("bad");
  EXPECT_EQ(terminal_.Shown(), std::string(kRemoved) + "vmetrics: bad\r\n");
}

TEST_F(ProgressTest, LineIsRemovedBeforeOutputOnATerminal) {
  const Redirection output(STDOUT_FILENO, terminal_.Descriptor());
  const Input input(name_);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  terminal_.Shown();
  Write("result");
  EXPECT_EQ(terminal_.Shown(), kRemoved);
}

TEST_F(ProgressTest, LineStaysWhereOutputGoesElsewhere) {
  const TemporaryDirectory directory;
  const int file = open((directory / "out").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  const Redirection output(STDOUT_FILENO, file);
  close(file);
  const Input input(name_);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  terminal_.Shown();
  Write("result");
  EXPECT_EQ(terminal_.Shown(), "");
}

TEST_F(ProgressTest, NothingIsShownWhereStandardErrorIsNoTerminal) {
  const std::string elsewhere = directory_ / "error";
  const int file = open(elsewhere.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  const Redirection error(STDERR_FILENO, file);
  close(file);
  const Input input(name_);
  Progress progress(Now);
  now += milliseconds(1000);
  progress.Show(input);
  EXPECT_EQ(FileContent::Read(elsewhere), "");
}

}  // namespace
}  // namespace vmetrics
