#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "ChildProcess.h"
#include "Deadline.h"
#include "DescriptorTable.h"
#include "FileContent.h"
#include "NonRegularFiles.h"
#include "TemporaryDirectory.h"
#include "VFileLock.h"
#include "VPlatformConfig.h"

namespace {

constexpr char kExited[] = "exited with 0";

unsigned ModeOf(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
}

bool CanLockShared(const std::string& name) {
  VFileLock file(name);
  return VFileLockGuard(file).LockShared();
}

bool CanLockExclusive(const std::string& name) {
  VFileLock file(name);
  return VFileLockGuard(file).LockExclusive();
}

/// Replaces the content of the file under a lock; returns what Write does.
int WriteLocked(const std::string& name, const std::string& text) {
  VFileLock file(name);
  VFileLockGuard guard(file);
  EXPECT_TRUE(guard.LockExclusive());
  return file.Write(text.data(), static_cast<int>(text.size()));
}

/// Up to `length` bytes of the file, read under a lock.
std::string ReadLocked(const std::string& name, int length = 4096) {
  VFileLock file(name);
  VFileLockGuard guard(file);
  EXPECT_TRUE(guard.LockShared());
  std::string text(static_cast<std::size_t>(length), '#');
  const int read = file.Read(text.data(), length);
  EXPECT_GE(read, 0);
  EXPECT_EQ(text.find_first_not_of('#', static_cast<std::size_t>(read)), std::string::npos);
  text.resize(static_cast<std::size_t>(read));
  return text;
}

class VFileLockTest : public testing::Test {
 protected:
  const TemporaryDirectory directory_;
  const std::string path_ = directory_ / "file";
};

TEST_F(VFileLockTest, NamingAFileTouchesNothing) {
  const VFileLock file(path_);
  EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(VFileLockTest, BothLocksCreateAMissingFile) {
  EXPECT_TRUE(CanLockShared(directory_ / "shared"));
  EXPECT_TRUE(CanLockExclusive(directory_ / "exclusive"));
  EXPECT_EQ(FileContent::Read(directory_ / "shared"), "");
  EXPECT_EQ(FileContent::Read(directory_ / "exclusive"), "");
}

TEST_F(VFileLockTest, CreatesWithItsOwnModeWhateverTheUmask) {
  EXPECT_EQ(ChildProcess::Run([&] {
              for (const mode_t mask : {0U, 022U, 077U, 0777U}) {
                umask(mask);
                const std::string path = directory_ / ("umask" + std::to_string(mask));
                EXPECT_TRUE(CanLockExclusive(path));
                EXPECT_EQ(ModeOf(path), 0600U) << mask;
              }
            }),
            kExited);
}

TEST_F(VFileLockTest, CreatesWithTheConfiguredMode) {
  EXPECT_EQ(ChildProcess::Run([&] {
              umask(077);
              VPlatformConfig::SetLockFileMode(0660);
              EXPECT_TRUE(CanLockShared(path_));
              EXPECT_EQ(ModeOf(path_), 0660U);
            }),
            kExited);
}

TEST_F(VFileLockTest, LeavesTheModeOfAnExistingFile) {
  FileContent::Write(path_, "");
  ASSERT_EQ(chmod(path_.c_str(), 0640), 0);
  EXPECT_TRUE(CanLockExclusive(path_));
  EXPECT_EQ(ModeOf(path_), 0640U);
}

TEST_F(VFileLockTest, RelativeNameLandsInTheWorkingDirectory) {
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_EQ(chdir(directory_.Path().c_str()), 0);
              EXPECT_EQ(WriteLocked("file", "text"), 4);
            }),
            kExited);
  EXPECT_EQ(FileContent::Read(path_), "text");
}

TEST_F(VFileLockTest, RelativeNameLandsInTheConfiguredDirectory) {
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(directory_.Path()));
              EXPECT_EQ(WriteLocked("file", "text"), 4);
            }),
            kExited);
  EXPECT_EQ(FileContent::Read(path_), "text");
}

TEST_F(VFileLockTest, AbsoluteNameIgnoresTheConfiguredDirectory) {
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory("/nowhere"));
              EXPECT_EQ(WriteLocked(path_, "text"), 4);
            }),
            kExited);
  EXPECT_EQ(FileContent::Read(path_), "text");
}

TEST_F(VFileLockTest, AnEmptyDirectoryStandsForTheWorkingDirectory) {
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory("/nowhere"));
              EXPECT_FALSE(CanLockExclusive("file"));
              EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(""));
              EXPECT_EQ(chdir(directory_.Path().c_str()), 0);
              EXPECT_TRUE(CanLockExclusive("file"));
            }),
            kExited);
  EXPECT_TRUE(std::filesystem::exists(path_));
}

TEST_F(VFileLockTest, RefusesADirectoryNameLongerThanAPath) {
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(std::string(PATH_MAX - 1, 'd')));
              EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(directory_.Path()));
              EXPECT_FALSE(VPlatformConfig::SetLockFileDirectory(std::string(PATH_MAX, 'd')));
              EXPECT_TRUE(CanLockExclusive("file"));  // Still in the directory named before.
            }),
            kExited);
  EXPECT_TRUE(std::filesystem::exists(path_));
}

/// `text`, led by as many slashes as make it `size` bytes long.
std::string Lengthened(const std::string& text, std::size_t size) {
  return std::string(size - text.size(), '/') + text;
}

TEST_F(VFileLockTest, APathMayBeAsLongAsTheSystemTakesIt) {
  EXPECT_TRUE(CanLockExclusive(Lengthened(path_, PATH_MAX - 1)));
  EXPECT_FALSE(CanLockExclusive(Lengthened(path_, PATH_MAX)));
  EXPECT_FALSE(CanLockExclusive(Lengthened(path_, 2 * PATH_MAX)));
}

TEST_F(VFileLockTest, ADirectoryAndANameMayBeAsLongAsTheSystemTakesThem) {
  EXPECT_EQ(
      ChildProcess::Run([&] {
        const std::size_t longest = PATH_MAX - 1 - std::strlen("/file");
        EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(Lengthened(directory_.Path(), longest)));
        EXPECT_TRUE(CanLockExclusive("file"));
        EXPECT_FALSE(CanLockExclusive("file2"));
      }),
      kExited);
  EXPECT_TRUE(std::filesystem::exists(path_));
}

TEST_F(VFileLockTest, ReadsFromTheStartEachTime) {
  FileContent::Write(path_, "content");
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockShared());
  for (int i = 0; i < 2; ++i) {
    char buffer[4] = {};
    EXPECT_EQ(file.Read(buffer, 4), 4);
    EXPECT_EQ(std::string(buffer, 4), "cont");
  }
}

TEST_F(VFileLockTest, ReadsNoMoreThanAskedForOrThere) {
  FileContent::Write(path_, "content");
  EXPECT_EQ(ReadLocked(path_, 0), "");
  EXPECT_EQ(ReadLocked(path_, 6), "conten");
  EXPECT_EQ(ReadLocked(path_, 7), "content");
  EXPECT_EQ(ReadLocked(path_, 8), "content");
}

TEST_F(VFileLockTest, ReadsNothingFromAnEmptyFile) { EXPECT_EQ(ReadLocked(path_), ""); }

TEST_F(VFileLockTest, ReadsBytesOfAnyValueInALongFile) {
  std::string content(100'000, '\0');
  for (std::size_t i = 0; i < content.size(); ++i) {
    content[i] = static_cast<char>(i % 251);
  }
  EXPECT_EQ(WriteLocked(path_, content), 100'000);
  EXPECT_EQ(FileContent::Read(path_), content);
  EXPECT_EQ(ReadLocked(path_, 200'000), content);
}

TEST_F(VFileLockTest, WriteReplacesTheWholeContent) {
  for (const std::string text : {"first", "equal", "rather longer", "short", ""}) {
    EXPECT_EQ(WriteLocked(path_, text), static_cast<int>(text.size()));
    EXPECT_EQ(FileContent::Read(path_), text);
  }
}

TEST_F(VFileLockTest, ReadSeesWhatWasWrittenUnderTheSameLock) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  for (const std::string text : {"written", "longer than before", "less"}) {
    char buffer[64] = {};
    EXPECT_EQ(file.Write(text.data(), static_cast<int>(text.size())),
              static_cast<int>(text.size()));
    EXPECT_EQ(file.Read(buffer, sizeof buffer), static_cast<int>(text.size()));
    EXPECT_EQ(buffer, text);
  }
}

TEST_F(VFileLockTest, ReadAndWriteRefuseBadArguments) {
  FileContent::Write(path_, "content");
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  char buffer[8] = "before";
  EXPECT_EQ(file.Read(nullptr, 4), -1);
  EXPECT_EQ(file.Read(buffer, -1), -1);
  EXPECT_EQ(file.Write(nullptr, 4), -1);
  EXPECT_EQ(file.Write("text", -1), -1);
  EXPECT_STREQ(buffer, "before");
  EXPECT_EQ(FileContent::Read(path_), "content");
}

TEST_F(VFileLockTest, ReadAndWriteNeedALock) {
  FileContent::Write(path_, "content");
  VFileLock file(path_);
  char buffer[8] = "before";
  const auto expectRefused = [&] {
    EXPECT_EQ(file.Read(buffer, 4), -1);
    EXPECT_EQ(file.Write("text", 4), -1);
    EXPECT_STREQ(buffer, "before");
  };
  expectRefused();
  EXPECT_TRUE(VFileLockGuard(file).LockExclusive());
  expectRefused();  // The guard is gone.
  const VFileLockGuard idle(file);
  expectRefused();  // It holds nothing.
  EXPECT_EQ(FileContent::Read(path_), "content");
}

TEST_F(VFileLockTest, WriteTellsWhatASizeLimitLeft) {
  FileContent::Write(path_, "12");
  EXPECT_EQ(ChildProcess::Run([&] {
              signal(SIGXFSZ, SIG_DFL);
              VFileLock file(path_);
              VFileLockGuard guard(file);
              EXPECT_TRUE(guard.LockExclusive());
              const rlimit four = {4, 4};
              EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &four), 0);
              EXPECT_EQ(file.Write("abcdefgh", 8), 4);
              char buffer[8] = {};
              EXPECT_EQ(file.Read(buffer, 8), 4);
              EXPECT_STREQ(buffer, "abcd");
              const rlimit none = {0, 0};
              EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
              EXPECT_EQ(file.Write("abcdefgh", 8), -1);
            }),
            kExited);
  EXPECT_EQ(FileContent::Read(path_), "abcd");
}

TEST_F(VFileLockTest, AnObjectTakesOneLockAtATime) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockShared());
  EXPECT_FALSE(guard.LockShared());
  EXPECT_FALSE(guard.LockExclusive());
  EXPECT_FALSE(VFileLockGuard(file).LockShared());
  EXPECT_FALSE(VFileLockGuard(file).LockExclusive());
  EXPECT_EQ(file.Write("text", 4), 4);  // The refused guards took nothing away.
  EXPECT_FALSE(CanLockExclusive(path_));
}

TEST_F(VFileLockTest, AnObjectCanBeLockedAgainAndAgain) {
  VFileLock file(path_);
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(VFileLockGuard(file).LockExclusive());
    EXPECT_TRUE(VFileLockGuard(file).LockShared());
  }
}

TEST_F(VFileLockTest, ReadersShareTheLock) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockShared());
  EXPECT_TRUE(CanLockShared(path_));
  EXPECT_EQ(ChildProcess::Run([&] { EXPECT_TRUE(CanLockShared(path_)); }), kExited);
}

TEST_F(VFileLockTest, AReaderExcludesWriters) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockShared());
  EXPECT_FALSE(CanLockExclusive(path_));
  EXPECT_EQ(ChildProcess::Run([&] { EXPECT_FALSE(CanLockExclusive(path_)); }), kExited);
}

TEST_F(VFileLockTest, AWriterExcludesEverybody) {
  auto file = std::make_unique<VFileLock>(path_);
  std::optional<VFileLockGuard> guard(*file);
  ASSERT_TRUE(guard->LockExclusive());
  EXPECT_FALSE(CanLockShared(path_));
  EXPECT_FALSE(CanLockExclusive(path_));
  EXPECT_EQ(ChildProcess::Run([&] {
              EXPECT_FALSE(CanLockShared(path_));
              EXPECT_FALSE(CanLockExclusive(path_));
            }),
            kExited);
  guard.reset();
  EXPECT_TRUE(CanLockExclusive(path_));
}

TEST_F(VFileLockTest, AnotherThreadIsExcludedToo) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  bool locked = true;
  std::thread([&] { locked = CanLockShared(path_); }).join();
  EXPECT_FALSE(locked);
}

TEST_F(VFileLockTest, AnotherProcessIsExcludedUntilItsHolderDies) {
  const ChildGate locked;
  const ChildGate never;
  ChildProcess holder([&] {
    VFileLock file(path_);
    VFileLockGuard guard(file);
    EXPECT_TRUE(guard.LockExclusive());
    locked.Open();
    never.Wait();
  });
  locked.Wait();
  EXPECT_FALSE(CanLockShared(path_));
  holder.Kill(SIGKILL);
  EXPECT_EQ(holder.Wait(), "killed by signal 9");
  EXPECT_TRUE(CanLockExclusive(path_));
}

TEST_F(VFileLockTest, AnUnrelatedCloseDropsNoLock) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  FileContent::Read(path_);
  EXPECT_FALSE(CanLockShared(path_));
}

TEST_F(VFileLockTest, AForkedChildDoesNotUnlockForItsParent) {
  VFileLock file(path_);
  std::optional<VFileLockGuard> guard(file);
  ASSERT_TRUE(guard->LockExclusive());
  EXPECT_EQ(ChildProcess::Run([&] { guard.reset(); }), kExited);
  EXPECT_FALSE(CanLockShared(path_));
}

TEST_F(VFileLockTest, WaitsATenthOfASecondForALockAndNoLonger) {
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  const long begin = Deadline::Milliseconds(CLOCK_MONOTONIC);
  EXPECT_FALSE(CanLockExclusive(path_));
  const long waited = Deadline::Milliseconds(CLOCK_MONOTONIC) - begin;
  EXPECT_GE(waited, 99);
  EXPECT_LT(waited, 2000);
}

int heldByHandler = -1;

TEST_F(VFileLockTest, TakesALockThatComesFreeWhileItWaits) {
  heldByHandler = open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  ASSERT_EQ(flock(heldByHandler, LOCK_EX | LOCK_NB), 0);
  struct sigaction before;
  struct sigaction release = {};
  release.sa_handler = [](int) { close(heldByHandler); };
  ASSERT_EQ(sigaction(SIGALRM, &release, &before), 0);
  const itimerval soon = {{0, 0}, {0, 10'000}};
  ASSERT_EQ(setitimer(ITIMER_REAL, &soon, nullptr), 0);
  EXPECT_TRUE(CanLockExclusive(path_));
  ASSERT_EQ(sigaction(SIGALRM, &before, nullptr), 0);
}

TEST_F(VFileLockTest, ProcessesThatCountUnderTheLockMissNothing) {
  constexpr int kTimes = 300;
  const auto count = [&] {
    VFileLock file(path_);
    for (int counted = 0; counted < kTimes;) {
      VFileLockGuard guard(file);
      if (guard.LockExclusive()) {
        char buffer[16] = {};
        file.Read(buffer, sizeof buffer - 1);
        const std::string next = std::to_string(std::atoi(buffer) + 1);
        EXPECT_EQ(file.Write(next.data(), static_cast<int>(next.size())),
                  static_cast<int>(next.size()));
        ++counted;
      }
    }
  };
  ChildProcess child(count);
  std::thread thread(count);
  thread.join();
  EXPECT_EQ(child.Wait(), kExited);
  EXPECT_EQ(FileContent::Read(path_), std::to_string(2 * kTimes));
}

TEST_F(VFileLockTest, RefusesWhatIsNoRegularFile) {
  const NonRegularFiles files;
  for (const std::string& name : files.Names()) {
    EXPECT_FALSE(CanLockShared(name)) << name;
    EXPECT_FALSE(CanLockExclusive(name)) << name;
  }
  EXPECT_TRUE(files.TargetsUntouched());
}

TEST_F(VFileLockTest, RefusesNamesThatNoFileCanHave) {
  for (const std::string& name :
       {std::string(), directory_ / std::string(300, 'n'), std::string(PATH_MAX + 1, '/') + "n",
        directory_ / "missing/file", std::string("/")}) {
    EXPECT_FALSE(CanLockExclusive(name)) << name;
  }
}

TEST_F(VFileLockTest, MakesADeletedFileAnew) {
  VFileLock file(path_);
  EXPECT_TRUE(VFileLockGuard(file).LockExclusive());
  ASSERT_EQ(unlink(path_.c_str()), 0);
  EXPECT_TRUE(VFileLockGuard(file).LockShared());
  EXPECT_TRUE(std::filesystem::exists(path_));
}

TEST_F(VFileLockTest, KeepsErrno) {
  const auto expectKept = [](auto call) {
    errno = EDOM;
    call();
    EXPECT_EQ(errno, EDOM);
  };
  VFileLock file(path_);
  char buffer[8];
  auto guard = std::make_unique<VFileLockGuard>(file);
  expectKept([&] { EXPECT_TRUE(guard->LockExclusive()); });
  expectKept([&] { EXPECT_EQ(file.Write("text", 4), 4); });
  expectKept([&] { EXPECT_EQ(file.Read(buffer, 8), 4); });
  expectKept([&] { EXPECT_FALSE(CanLockShared(path_)); });
  expectKept([&] { guard.reset(); });
  expectKept([&] { EXPECT_EQ(file.Read(buffer, 8), -1); });
  const NonRegularFiles files;
  for (const std::string& name : files.Names()) {
    expectKept([&] { EXPECT_FALSE(CanLockExclusive(name)); });
  }
}

TEST_F(VFileLockTest, KeepsErrnoWhereTheHostHasClosedTheDescriptor) {
  VFileLock file(path_);
  auto guard = std::make_unique<VFileLockGuard>(file);
  ASSERT_TRUE(guard->LockExclusive());
  for (const int descriptor : DescriptorTable::OpenOn(path_)) {
    close(descriptor);
  }
  errno = EDOM;
  EXPECT_EQ(file.Write("text", 4), -1);
  guard.reset();
  EXPECT_EQ(errno, EDOM);
}

TEST_F(VFileLockTest, LeavesNoDescriptorOpen) {
  const long before = DescriptorTable::Count();
  WriteLocked(path_, "text");
  ReadLocked(path_);
  EXPECT_EQ(DescriptorTable::Count(), before);
  const NonRegularFiles files;
  for (const std::string& name : files.Names()) {
    EXPECT_FALSE(CanLockExclusive(name));
    EXPECT_EQ(DescriptorTable::Count(), before) << name;
  }
  VFileLock file(path_);
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  EXPECT_FALSE(CanLockShared(path_));
  EXPECT_EQ(DescriptorTable::Count(), before + 1);
}

TEST_F(VFileLockTest, StartedProgramsDoNotInheritTheLock) {
  for (int i = 0; i < 2; ++i) {  // The file is created, then exists.
    VFileLock file(path_);
    VFileLockGuard guard(file);
    ASSERT_TRUE(guard.LockExclusive());
    const std::vector<int> descriptors = DescriptorTable::OpenOn(path_);
    ASSERT_EQ(descriptors.size(), 1U);
    EXPECT_TRUE(DescriptorTable::ClosesOnExec(descriptors[0]));
  }
}

/// Writes an identifier of a's, one of b's, and so on.
void WriteInTurns(const std::string& path, int times) {
  for (int i = 0; i < times; ++i) {
    WriteLocked(path, std::string(36, i % 2 == 0 ? 'a' : 'b'));
  }
}

void ExpectWhole(const std::string& identifier) {
  EXPECT_TRUE(identifier == std::string(36, 'a') || identifier == std::string(36, 'b'))
      << testing::PrintToString(identifier);
}

/// A reader that ignores the lock may, a few times in a million, see one identifier's beginning and
/// the other's end, as the system copies; but never a part or nothing.
void ExpectOfFullLength(const std::string& identifier) {
  EXPECT_EQ(identifier.size(), 36U) << testing::PrintToString(identifier);
  EXPECT_EQ(identifier.find_first_not_of("ab"), std::string::npos)
      << testing::PrintToString(identifier);
}

TEST_F(VFileLockTest, AReaderThatIgnoresTheLockSeesATextOfFullLength) {
  WriteInTurns(path_, 1);
  ChildProcess writer([&] { WriteInTurns(path_, 5000); });
  for (int i = 0; i < 20'000 && !HasFailure(); ++i) {
    ExpectOfFullLength(FileContent::Read(path_));
  }
  EXPECT_EQ(writer.Wait(), kExited);
}

TEST_F(VFileLockTest, AWriterThatIsKilledLeavesAWholeText) {
  WriteInTurns(path_, 1);
  for (int round = 0; round < 30; ++round) {
    const ChildGate begun;
    ChildProcess writer([&] {
      begun.Open();
      WriteInTurns(path_, INT_MAX);
    });
    begun.Wait();
    for (int i = 0; i < 5 * round; ++i) {
      ExpectOfFullLength(
          FileContent::Read(path_));  // So that the end comes at another moment each time.
    }
    writer.Kill(SIGKILL);
    EXPECT_EQ(writer.Wait(), "killed by signal 9");
    ExpectWhole(ReadLocked(path_));
  }
}

}  // namespace
