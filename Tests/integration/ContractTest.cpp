// What the framework relies on in whatever platform it stands on, as docs/platform.md has it. Of
// JSON there is little: the framework's own tests look at that on each platform.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include "BoundsChecked.h"
#include "FileContent.h"
#include "JsonLines.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"
#include "VDateTime.h"
#include "VFileLock.h"
#include "VIpc.h"
#include "VJson.h"
#include "VLogger.h"

namespace {

TEST(LoggerContractTest, MetricsLineIsTheTextAndALineBreak) {
  const std::string text = "{\"long\":\"" + std::string(9000, 'x') + "%s\"}";
  testing::internal::CaptureStdout();
  VLogger::GetInstance().Metrics("%s", text.c_str());
  VLogger::GetInstance().Metrics("%s", "{}");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), text + "\n{}\n");
}

TEST(LoggerContractTest, LineAndLineBreakAreWrittenAsOne) {
  const TestPipe packets(O_DIRECT | O_NONBLOCK);
  const int output = dup(STDOUT_FILENO);
  dup2(packets.Writer(), STDOUT_FILENO);
  VLogger::GetInstance().Metrics("%s", "{}");
  dup2(output, STDOUT_FILENO);
  close(output);
  EXPECT_EQ(packets.Read(), "{}\n");
}

// An exit handler that is older than the first use of the logger comes after all destructors of
// its.
TEST(LoggerContractTest, WritesWhileTheProcessExits) {
  const TemporaryDirectory directory;
  const ProbeResult once = RunProbe(directory, {"everything"});
  const ProbeResult twice = RunProbe(directory, {"everything-at-exit", "everything"});
  ASSERT_TRUE(Succeeded(once));
  ASSERT_TRUE(Succeeded(twice));
  const std::size_t lines = ParseJsonLines(once.Metrics()).size();
  EXPECT_GT(lines, 0U);
  EXPECT_EQ(ParseJsonLines(twice.Metrics()).size(), 2 * lines);
}

TEST(LoggerContractTest, DiagnosticsTellTheirMessageElsewhere) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  VLogger::GetInstance().Log("unit", 12, "Work", " ", "", 1, "%s of %d", "one", 2);
  const std::string diagnostics = testing::internal::GetCapturedStderr();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_NE(diagnostics.find("Work"), std::string::npos) << diagnostics;
  EXPECT_NE(diagnostics.find("one of 2"), std::string::npos) << diagnostics;
  EXPECT_NE(diagnostics.find("unit:12"), std::string::npos) << diagnostics;
}

TEST(ClockContractTest, TicksAreMillisecondsThatDoNotCountDown) {
  const unsigned long first = VDateTime::GetCurrentTick();
  const unsigned long second = VDateTime::GetCurrentTick();
  EXPECT_GT(first, 1'600'000'000'000U);
  EXPECT_LT(second, 10'000'000'000'000U);
  EXPECT_LT(second - first, 60'000U);
}

class FileLockContractTest : public testing::Test {
 protected:
  std::string Name() const { return directory_ / "shared"; }

  TemporaryDirectory directory_;
};

TEST_F(FileLockContractTest, LocksMakeAMissingFile) {
  VFileLock file(Name());
  EXPECT_TRUE(VFileLockGuard(file).LockShared());
  EXPECT_EQ(FileContent::Read(Name()), "");
}

TEST_F(FileLockContractTest, ContentIsReplacedAndReadFromItsBeginning) {
  VFileLock file(Name());
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockExclusive());
  EXPECT_EQ(file.Write("a longer text", 13), 13);
  EXPECT_EQ(file.Write("short", 5), 5);
  for (int i = 0; i < 2; ++i) {
    char text[128] = "";
    EXPECT_EQ(file.Read(text, sizeof text), 5);
    EXPECT_STREQ(text, "short");
  }
  EXPECT_EQ(FileContent::Read(Name()), "short");
}

TEST_F(FileLockContractTest, ExclusiveLockExcludesAllOthersUntilItIsGivenBack) {
  VFileLock file(Name());
  VFileLock same(Name());
  {
    VFileLockGuard guard(file);
    ASSERT_TRUE(guard.LockExclusive());
    EXPECT_FALSE(VFileLockGuard(same).LockExclusive());
    EXPECT_FALSE(VFileLockGuard(same).LockShared());
  }
  EXPECT_TRUE(VFileLockGuard(same).LockExclusive());
}

TEST_F(FileLockContractTest, SharedLockExcludesExclusiveOnesOnly) {
  VFileLock file(Name());
  VFileLock same(Name());
  VFileLockGuard guard(file);
  ASSERT_TRUE(guard.LockShared());
  EXPECT_TRUE(VFileLockGuard(same).LockShared());
  EXPECT_FALSE(VFileLockGuard(same).LockExclusive());
}

TEST_F(FileLockContractTest, FileThatCannotBeOpenedCannotBeLocked) {
  VFileLock file(directory_ / "missing/shared");
  EXPECT_FALSE(VFileLockGuard(file).LockShared());
  EXPECT_FALSE(VFileLockGuard(file).LockExclusive());
}

TEST(MessageContractTest, WordsAndBodyStandWhereverTheMessageDoes) {
  static_assert(alignof(VMessage) == 1, "packed");
  static_assert(std::is_same<decltype(VMessage::srcModuleId), std::int32_t>::value, "signed");
  static_assert(std::is_same<decltype(VMessage::dstModuleId), std::int32_t>::value, "signed");
  static_assert(std::is_same<decltype(VMessage::msgType), std::int32_t>::value, "signed");
  EXPECT_EQ(offsetof(VMessage, body), 24U);
}

TEST(CopyContractTest, CopiesWhatFits) {
  char room[4] = "abc";
  EXPECT_EQ(memcpy_s(room, sizeof room, "xy", 2), 0);
  EXPECT_STREQ(room, "xyc");
  EXPECT_EQ(memset_s(room, sizeof room, 'z', 3), 0);
  EXPECT_STREQ(room, "zzz");
}

TEST(CopyContractTest, RefusesWhatDoesNotFitAndNullPointers) {
  char room[8] = "abc";  // With room beyond its end, where a copy that is not refused does no harm.
  constexpr std::size_t kRoom = 4;
  EXPECT_NE(memcpy_s(room, kRoom, "vwxyz", 5), 0);
  EXPECT_NE(memcpy_s(nullptr, kRoom, "x", 1), 0);
  EXPECT_NE(memcpy_s(room, kRoom, nullptr, 1), 0);
  EXPECT_NE(memset_s(room, kRoom, 0, 5), 0);
  EXPECT_NE(memset_s(nullptr, kRoom, 0, 1), 0);
}

TEST(CopyContractTest, TakesNothingIntoNoRoom) {
  char room[1] = "";
  EXPECT_EQ(memcpy_s(room, 0, "x", 0), 0);
  EXPECT_EQ(memset_s(room, 0, 'x', 0), 0);
}

TEST(JsonContractTest, TextWithANulIsNotJson) {
  using namespace std::string_literals;
  VJson::Value value;
  value.AddJsonValue("a", 1);
  EXPECT_FALSE(value.Parse("{\"b\":2}\0"s));
  EXPECT_EQ(value.ToString(), "{\"a\":1}");
}

TEST(TokenContractTest, CutsATextUp) {
  char text[] = ";;a;b;;c;";
  char* context = nullptr;
  EXPECT_STREQ(strtok_s(text, ";", &context), "a");
  EXPECT_STREQ(strtok_s(nullptr, ";", &context), "b");
  EXPECT_STREQ(strtok_s(nullptr, ";", &context), "c");
  EXPECT_EQ(strtok_s(nullptr, ";", &context), nullptr);
}

}  // namespace
