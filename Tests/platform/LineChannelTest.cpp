#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "AllocationFailure.h"
#include "ChildProcess.h"
#include "Deadline.h"
#include "DescriptorTable.h"
#include "FileContent.h"
#include "FileSizeLimit.h"
#include "LineChannel.h"
#include "NonRegularFiles.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"

namespace {

constexpr char kExited[] = "exited with 0";

int WriteLine(LineChannel& channel, const std::string& text) {
  return channel.WriteLine(text.data(), text.size());
}

/// How many writing system calls this thread has made so far. Read without streams, which
/// sanitizers check by system calls of their own.
long WriteCalls() {
  char text[512] = {};
  const int file = open("/proc/thread-self/io", O_RDONLY | O_CLOEXEC);
  const ssize_t count = read(file, text, sizeof text - 1);
  close(file);
  const char* const line = std::strstr(text, "syscw: ");
  EXPECT_TRUE(count > 0 && line != nullptr) << "the kernel does not count system calls";
  return line == nullptr ? 0 : std::atol(line + 7);
}

/// Makes the next line look around at once, as it does after one that failed: this one stands in
/// memory that nobody may read, so nothing of it can go out.
void MakeLookDue(LineChannel& channel) {
  constexpr std::size_t kSize = 8192;
  void* const memory = mmap(nullptr, kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(memory, MAP_FAILED);
  EXPECT_NE(channel.WriteLine(static_cast<const char*>(memory), kSize), 0);
  munmap(memory, kSize);
}

class LineChannelTest : public testing::Test {
 protected:
  ~LineChannelTest() override {
    for (const int descriptor : DescriptorTable::OpenOn(path_)) {
      close(descriptor);  // A channel never closes its own.
    }
  }

  void Open() { ASSERT_TRUE(channel_.OpenFile(path_)); }

  int Descriptor() const {
    const std::vector<int> all = DescriptorTable::OpenOn(path_);
    EXPECT_EQ(all.size(), 1U);
    return all.empty() ? -1 : all[0];
  }

  std::string Content() const { return FileContent::Read(path_); }

  const TemporaryDirectory directory_;
  const std::string path_ = directory_ / "lines";
  TestPipe stream_;
  LineChannel channel_{stream_.Writer()};
};

TEST_F(LineChannelTest, WritesToTheStreamItBeganWith) {
  EXPECT_EQ(WriteLine(channel_, "text"), 0);
  EXPECT_EQ(stream_.Drain(), "text\n");
}

TEST_F(LineChannelTest, AppendsALineOfAnyLengthToAFileByOneWrite) {
  Open();
  std::string expected;
  for (const std::size_t length : {0U, 1U, 4094U, 4095U, 4096U, 4097U, 61440U, 400'000U}) {
    const std::string text(length, 'x');
    const long before = WriteCalls();
    EXPECT_EQ(WriteLine(channel_, text), 0);
    EXPECT_EQ(WriteCalls(), before + 1) << length;
    expected += text + "\n";
  }
  EXPECT_EQ(Content(), expected);
}

TEST_F(LineChannelTest, PutsALineIntoAPipeInOnePieceUpTo4096Bytes) {
  const TestPipe packets(O_DIRECT);
  LineChannel channel(packets.Writer());
  for (const std::size_t length : {0U, 1U, 4094U, 4095U}) {
    const std::string text(length, 'x');
    EXPECT_EQ(WriteLine(channel, text), 0);
    EXPECT_EQ(packets.Read(), text + "\n");
  }
  EXPECT_EQ(WriteLine(channel, std::string(4096, 'y')), 0);
  EXPECT_EQ(packets.Drain(), std::string(4096, 'y') + "\n");
}

TEST_F(LineChannelTest, AllocatesNothing) {
  Open();
  LineChannel toStream(stream_.Writer());
  const std::string text(60'000, 'x');
  const long before = AllocationFailure::Allocations();
  EXPECT_EQ(WriteLine(channel_, text), 0);
  EXPECT_EQ(WriteLine(toStream, text), 0);
  EXPECT_EQ(AllocationFailure::Allocations(), before);
}

TEST_F(LineChannelTest, CreatesTheFileForItsOwnerAlone) {
  EXPECT_EQ(ChildProcess::Run([&] {
              umask(0);
              Open();
            }),
            kExited);
  struct stat status;
  ASSERT_EQ(stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode, S_IFREG | 0600U);
}

TEST_F(LineChannelTest, OpensTheFileForAppendingAndClosesItOnExec) {
  Open();
  EXPECT_NE(fcntl(Descriptor(), F_GETFL) & O_APPEND, 0);
  EXPECT_TRUE(DescriptorTable::ClosesOnExec(Descriptor()));
  ASSERT_EQ(rename(path_.c_str(), (directory_ / "moved").c_str()), 0);
  MakeLookDue(channel_);
  WriteLine(channel_, "text");
  EXPECT_TRUE(DescriptorTable::ClosesOnExec(Descriptor()));  // Also after it followed.
}

TEST_F(LineChannelTest, AppendsToWhatIsThere) {
  FileContent::Write(path_, "before\n");
  Open();
  LineChannel other(STDOUT_FILENO);
  ASSERT_TRUE(other.OpenFile(path_));
  WriteLine(channel_, "one");
  WriteLine(other, "two");
  WriteLine(channel_, "three");
  EXPECT_EQ(Content(), "before\none\ntwo\nthree\n");
}

TEST_F(LineChannelTest, LinesOfThreadsAndProcessesDoNotMix) {
  Open();
  const auto writeLines = [&](char letter) {
    for (int i = 0; i < 300; ++i) {
      EXPECT_EQ(WriteLine(channel_, std::string(9000, letter)), 0);
    }
  };
  ChildProcess child([&] { writeLines('c'); });
  std::thread thread(writeLines, 't');
  writeLines('m');
  thread.join();
  EXPECT_EQ(child.Wait(), kExited);

  std::ifstream file(path_);
  int count = 0;
  for (std::string line; std::getline(file, line); ++count) {
    ASSERT_EQ(line, std::string(9000, line.empty() ? '?' : line[0]));
  }
  EXPECT_EQ(count, 900);
}

TEST_F(LineChannelTest, RefusesWhatIsNoRegularFile) {
  const NonRegularFiles files;
  const int errors[] = {EISDIR, ENXIO, ELOOP, ELOOP, ENXIO, EINVAL};
  const std::vector<std::string> names = files.Names();
  ASSERT_EQ(names.size(), std::size(errors));
  const long before = DescriptorTable::Count();
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_FALSE(channel_.OpenFile(names[i])) << names[i];
    EXPECT_EQ(errno, errors[i]) << names[i];
    WriteLine(channel_, "text");
    EXPECT_EQ(stream_.Drain(), "text\n") << names[i];
    EXPECT_EQ(DescriptorTable::Count(), before) << names[i];
  }
  EXPECT_TRUE(files.TargetsUntouched());
}

TEST_F(LineChannelTest, RefusesAFifoThatSomebodyReads) {
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  const int reader = open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  EXPECT_FALSE(channel_.OpenFile(path_));
  EXPECT_EQ(errno, EINVAL);
  close(reader);
}

TEST_F(LineChannelTest, RefusesNamesThatNoFileCanHave) {
  Open();
  const auto expectRefused = [&](const std::string& path, int error) {
    EXPECT_FALSE(channel_.OpenFile(path)) << path;
    EXPECT_EQ(errno, error) << path;
  };
  expectRefused("", ENOENT);
  expectRefused(directory_ / "missing/file", ENOENT);
  expectRefused(directory_ / std::string(300, 'n'), ENAMETOOLONG);
  expectRefused("/" + std::string(PATH_MAX, 'n'), ENAMETOOLONG);
  expectRefused(std::string(PATH_MAX - 2, '/') + "nn", ENAMETOOLONG);
  WriteLine(channel_, "text");
  EXPECT_EQ(Content(), "text\n");
}

TEST_F(LineChannelTest, ASecondFileTakesThePlaceOfTheFirst) {
  Open();
  WriteLine(channel_, "one");
  const int descriptor = Descriptor();
  ASSERT_TRUE(channel_.OpenFile(directory_ / "second"));
  WriteLine(channel_, "two");
  EXPECT_EQ(Content(), "one\n");
  EXPECT_EQ(FileContent::Read(directory_ / "second"), "two\n");
  EXPECT_TRUE(DescriptorTable::OpenOn(path_).empty());
  EXPECT_EQ(DescriptorTable::OpenOn(directory_ / "second"), std::vector<int>{descriptor});
  close(descriptor);
}

TEST_F(LineChannelTest, TakesNoDescriptorOfAStandardStream) {
  EXPECT_EQ(ChildProcess::Run([&] {
              close(STDIN_FILENO);
              close(STDOUT_FILENO);
              Open();
              EXPECT_GT(Descriptor(), STDERR_FILENO);
            }),
            kExited);
}

TEST_F(LineChannelTest, ResolvesARelativePathOnce) {
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_EQ(chdir(directory_.Path().c_str()), 0);
              EXPECT_TRUE(channel_.OpenFile("lines"));
              EXPECT_EQ(chdir("/"), 0);
              EXPECT_EQ(unlink(path_.c_str()), 0);
              MakeLookDue(channel_);
              EXPECT_EQ(WriteLine(channel_, "text"), 0);
            }),
            kExited);
  EXPECT_EQ(Content(), "text\n");
}

TEST_F(LineChannelTest, FollowsAFileThatWasMovedAwayWithinASecond) {
  Open();
  WriteLine(channel_, "one");
  ASSERT_EQ(rename(path_.c_str(), (directory_ / "moved").c_str()), 0);
  std::this_thread::sleep_for(std::chrono::seconds(1));
  WriteLine(channel_, "two");
  EXPECT_EQ(FileContent::Read(directory_ / "moved"), "one\n");
  EXPECT_EQ(Content(), "two\n");
}

TEST_F(LineChannelTest, FollowsAFileThatWasDeleted) {
  Open();
  WriteLine(channel_, "one");
  const int descriptor = Descriptor();
  ASSERT_EQ(unlink(path_.c_str()), 0);
  MakeLookDue(channel_);
  WriteLine(channel_, "two");
  EXPECT_EQ(Content(), "two\n");
  EXPECT_EQ(Descriptor(), descriptor);
}

TEST_F(LineChannelTest, FollowsToAFileThatSomebodyElsePutThere) {
  Open();
  FileContent::Write(directory_ / "other", "other\n");
  ASSERT_EQ(rename((directory_ / "other").c_str(), path_.c_str()), 0);
  MakeLookDue(channel_);
  WriteLine(channel_, "text");
  EXPECT_EQ(Content(), "other\ntext\n");
}

TEST_F(LineChannelTest, StaysWithItsFileWhereItCannotFollow) {
  Open();
  const std::string moved = directory_ / "moved";
  ASSERT_EQ(rename(path_.c_str(), moved.c_str()), 0);
  FileContent::Write(directory_ / "target", "");
  std::filesystem::create_symlink(directory_ / "target", path_);
  MakeLookDue(channel_);
  EXPECT_EQ(WriteLine(channel_, "one"), 0);
  EXPECT_EQ(FileContent::Read(moved), "one\n");
  EXPECT_EQ(FileContent::Read(directory_ / "target"), "");

  ASSERT_EQ(unlink(path_.c_str()), 0);
  MakeLookDue(channel_);
  EXPECT_EQ(WriteLine(channel_, "two"), 0);
  EXPECT_EQ(FileContent::Read(moved), "one\n");
  EXPECT_EQ(Content(), "two\n");
}

TEST_F(LineChannelTest, LeavesADescriptorThatBecameTheHostsAlone) {
  Open();
  const int number = Descriptor();
  const std::string hosts = directory_ / "hosts";
  const int opened = open(hosts.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  ASSERT_EQ(dup2(opened, number), number);
  close(opened);
  ASSERT_EQ(DescriptorTable::OpenOn(hosts), std::vector<int>{number});

  MakeLookDue(channel_);
  EXPECT_EQ(WriteLine(channel_, "text"), 0);
  EXPECT_EQ(FileContent::Read(hosts), "");
  EXPECT_EQ(DescriptorTable::OpenOn(hosts), std::vector<int>{number});
  EXPECT_EQ(Content(), "text\n");
  close(number);
}

TEST_F(LineChannelTest, WritesNowhereWhereItsFileIsLost) {
  Open();
  const int number = Descriptor();
  const std::string hosts = directory_ / "hosts";
  const int hostsDescriptor = open(hosts.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  ASSERT_EQ(dup2(hostsDescriptor, number), number);
  ASSERT_EQ(unlink(path_.c_str()), 0);
  std::filesystem::create_directory(path_);
  MakeLookDue(channel_);
  EXPECT_EQ(WriteLine(channel_, "lost"), EBADF);
  EXPECT_EQ(FileContent::Read(hosts), "");

  std::filesystem::remove(path_);
  EXPECT_EQ(WriteLine(channel_, "text"), 0);
  EXPECT_EQ(FileContent::Read(hosts), "");
  EXPECT_EQ(Content(), "text\n");
  close(hostsDescriptor);
  close(number);
}

TEST_F(LineChannelTest, TellsThatItsStreamIsClosed) {
  const int closed = dup(stream_.Writer());
  LineChannel channel(closed);
  ASSERT_EQ(close(closed), 0);
  EXPECT_EQ(WriteLine(channel, "text"), EBADF);
}

class LineChannelLimitTest : public LineChannelTest {
 protected:
  /// Runs `body` in a process that SIGXFSZ kills, on a channel that opened the file under a limit.
  template <typename Body>
  void ExpectSurvives(rlim_t limit, Body body) {
    EXPECT_EQ(ChildProcess::Run([&] {
                signal(SIGXFSZ, SIG_DFL);
                FileSizeLimit::Set(limit);
                Open();
                body();
              }),
              kExited);
  }
};

TEST_F(LineChannelLimitTest, BeginsANewLineBehindAFragment) {
  ExpectSurvives(10, [&] {
    EXPECT_EQ(WriteLine(channel_, "0123456789abcdef"), EFBIG);
    FileSizeLimit::Lift();
    EXPECT_EQ(WriteLine(channel_, "next"), 0);
    EXPECT_EQ(WriteLine(channel_, "last"), 0);
  });
  EXPECT_EQ(Content(), "0123456789\nnext\nlast\n");
}

TEST_F(LineChannelLimitTest, BeginsANewLineBehindAFragmentOfALongLine) {
  const std::string text(60'000, 'x');
  ExpectSurvives(50'000, [&] {
    EXPECT_EQ(WriteLine(channel_, text), EFBIG);
    FileSizeLimit::Lift();
    EXPECT_EQ(WriteLine(channel_, text), 0);
  });
  EXPECT_EQ(Content(), std::string(50'000, 'x') + "\n" + text + "\n");
}

TEST_F(LineChannelLimitTest, EndsALineThatLacksItsBreakAlone) {
  ExpectSurvives(4, [&] {
    EXPECT_EQ(WriteLine(channel_, "text"), EFBIG);
    FileSizeLimit::Lift();
    EXPECT_EQ(WriteLine(channel_, "next"), 0);
  });
  EXPECT_EQ(Content(), "text\nnext\n");
}

TEST_F(LineChannelLimitTest, LeavesNoBlankLineWhereNothingWentOut) {
  ExpectSurvives(0, [&] {
    EXPECT_EQ(WriteLine(channel_, "lost"), EFBIG);
    FileSizeLimit::Lift();
    EXPECT_EQ(WriteLine(channel_, "next"), 0);
  });
  EXPECT_EQ(Content(), "next\n");
}

TEST_F(LineChannelLimitTest, RemembersAFragmentOverLinesThatAreLostWhole) {
  ExpectSurvives(3, [&] {
    EXPECT_EQ(WriteLine(channel_, "fragment"), EFBIG);
    EXPECT_EQ(WriteLine(channel_, "lost"), EFBIG);
    EXPECT_EQ(WriteLine(channel_, "lost"), EFBIG);
    FileSizeLimit::Lift();
    EXPECT_EQ(WriteLine(channel_, "next"), 0);
  });
  EXPECT_EQ(Content(), "fra\nnext\n");
}

TEST_F(LineChannelLimitTest, BreaksALineOnceWhereOnlyTheBreakWentOut) {
  ExpectSurvives(3, [&] {
    EXPECT_EQ(WriteLine(channel_, "fragment"), EFBIG);
    FileSizeLimit::Set(4);
    EXPECT_EQ(WriteLine(channel_, "lost"), EFBIG);
    FileSizeLimit::Lift();
    EXPECT_EQ(WriteLine(channel_, "next"), 0);
  });
  EXPECT_EQ(Content(), "fra\nnext\n");
}

TEST_F(LineChannelLimitTest, SurvivesALimitSetLaterThatCutsALine) {
  ExpectSurvives(RLIM_INFINITY, [&] {
    EXPECT_EQ(WriteLine(channel_, "one"), 0);
    FileSizeLimit::Set(6);
    EXPECT_EQ(WriteLine(channel_, "two"), EFBIG);
  });
  EXPECT_EQ(Content(), "one\ntw");
}

TEST_F(LineChannelLimitTest, LeavesEveryFragmentBehindAmongThreads) {
  ExpectSurvives(RLIM_INFINITY, [&] {
    signal(SIGXFSZ, SIG_IGN);  // The limit changes faster than the channel looks.
    for (int round = 0; round < 300; ++round) {
      // Room for some whole lines and for a part of one.
      FileSizeLimit::Set(std::filesystem::file_size(path_) + 4100);
      const auto writeUntilItFails = [this](char letter) {
        const std::string text(100, letter);
        while (WriteLine(channel_, text) == 0) {
        }
      };
      std::thread other(writeUntilItFails, 'a');
      writeUntilItFails('b');
      other.join();
      FileSizeLimit::Lift();
      EXPECT_EQ(WriteLine(channel_, "end"), 0);
    }
  });
  std::size_t ends = 0;
  std::istringstream lines(Content());
  for (std::string line; std::getline(lines, line);) {
    ends += line == "end" ? 1 : 0;
  }
  EXPECT_EQ(ends, 300U);
}

TEST(LineChannelTerminalTest, DropsALineThatNobodyTakesFromTheTerminal) {
  const int screen = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(screen, 0);
  ASSERT_EQ(grantpt(screen), 0);
  ASSERT_EQ(unlockpt(screen), 0);
  const int terminal = open(ptsname(screen), O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(terminal, 0);
  EXPECT_EQ(ChildProcess::Run([&] {
              LineChannel channel(terminal);
              int error = 0;
              for (int line = 0; error == 0 && line < 10'000; ++line) {
                error = WriteLine(channel, std::string(300, 'x'));
              }
              EXPECT_EQ(error, EAGAIN);
              EXPECT_EQ(fcntl(terminal, F_GETFL) & O_NONBLOCK, 0);  // Others share the terminal.
            }),
            kExited);
  close(terminal);
  close(screen);
}

TEST(LineChannelSocketTest, DropsALineThatNobodyTakesFromTheSocket) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
  EXPECT_EQ(ChildProcess::Run([&] {
              LineChannel channel(ends[0]);
              int error = 0;
              for (int line = 0; error == 0 && line < 10'000; ++line) {
                error = WriteLine(channel, std::string(300, 'x'));
              }
              EXPECT_EQ(error, EAGAIN);
            }),
            kExited);
  close(ends[0]);
  close(ends[1]);
}

class LineChannelPipeTest : public testing::TestWithParam<int> {
 protected:
  TestPipe pipe_{GetParam()};
  LineChannel channel_{pipe_.Writer()};
};

INSTANTIATE_TEST_SUITE_P(BlockingAndNot, LineChannelPipeTest, testing::Values(0, O_NONBLOCK));

TEST_P(LineChannelPipeTest, KeepsSigpipeFromTheHost) {
  pipe_.CloseReader();
  EXPECT_EQ(ChildProcess::Run([&] {
              signal(SIGPIPE, SIG_DFL);
              EXPECT_EQ(WriteLine(channel_, "text"), EPIPE);
              EXPECT_EQ(WriteLine(channel_, std::string(10'000, 'x')), EPIPE);
            }),
            kExited);
}

TEST_P(LineChannelPipeTest, KeepsSigpipeFromAHostThatRedirectsItsStream) {
  const TemporaryDirectory directory;
  FileContent::Write(directory / "file", "");
  pipe_.CloseReader();
  EXPECT_EQ(ChildProcess::Run([&] {
              signal(SIGPIPE, SIG_DFL);
              const int stream = open((directory / "file").c_str(), O_WRONLY | O_CLOEXEC);
              LineChannel channel(stream);
              EXPECT_EQ(WriteLine(channel, "one"), 0);
              EXPECT_EQ(dup2(pipe_.Writer(), stream), stream);
              EXPECT_EQ(WriteLine(channel, "two"), EPIPE);
            }),
            kExited);
}

TEST_P(LineChannelPipeTest, LeavesTheHostsPendingSigpipe) {
  pipe_.CloseReader();
  EXPECT_EQ(ChildProcess::Run([&] {
              sigset_t set;
              sigemptyset(&set);
              sigaddset(&set, SIGPIPE);
              pthread_sigmask(SIG_BLOCK, &set, nullptr);
              raise(SIGPIPE);
              EXPECT_EQ(WriteLine(channel_, "text"), EPIPE);
              EXPECT_EQ(sigpending(&set), 0);
              EXPECT_EQ(sigismember(&set, SIGPIPE), 1);
            }),
            kExited);
}

TEST_P(LineChannelPipeTest, DropsALineAfterATenthOfASecondWhereThePipeIsFull) {
  const std::size_t filled = pipe_.Fill();
  const long begin = Deadline::Milliseconds(CLOCK_MONOTONIC);
  EXPECT_EQ(WriteLine(channel_, "lost"), EAGAIN);
  const long waited = Deadline::Milliseconds(CLOCK_MONOTONIC) - begin;
  EXPECT_GE(waited, 99);
  EXPECT_LT(waited, 2000);
  EXPECT_EQ(pipe_.Drain(), std::string(filled, '.'));
  EXPECT_EQ(WriteLine(channel_, "next"), 0);
  EXPECT_EQ(pipe_.Drain(), "next\n");
}

TEST_P(LineChannelPipeTest, BeginsANewLineBehindAFragment) {
  const std::string text(1'000'000, 'x');
  EXPECT_EQ(WriteLine(channel_, text), EAGAIN);
  const std::string fragment = pipe_.Drain();
  EXPECT_GT(fragment.size(), 0U);
  EXPECT_EQ(fragment, text.substr(0, fragment.size()));
  EXPECT_EQ(WriteLine(channel_, "next"), 0);
  EXPECT_EQ(pipe_.Drain(), "\nnext\n");
}

TEST_P(LineChannelPipeTest, CompletesALineThatIsLongerThanThePipe) {
  std::string read;
  std::thread reader([&] {
    while (read.empty() || read.back() != '.') {
      read += pipe_.Read();
    }
  });
  const std::string text(200'000, 'x');
  EXPECT_EQ(WriteLine(channel_, text), 0);
  EXPECT_EQ(write(pipe_.Writer(), ".", 1), 1);  // For the reader to end in any case.
  reader.join();
  EXPECT_EQ(read, text + "\n.");
}

}  // namespace
