// Naming a file for a channel, on a machine that fails.

#include <gmock/gmock.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "ChildProcess.h"
#include "DescriptorTable.h"
#include "FailEachSystemCall.h"
#include "FileContent.h"
#include "LineChannel.h"
#include "LineRemains.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"

namespace {

using testing::ElementsAre;

class ChannelFileFaultsTest : public testing::Test {
 protected:
  ~ChannelFileFaultsTest() override { CloseFiles(); }

  /// A new channel to the pipe, and no file.
  void Prepare() {
    std::filesystem::remove(first_);
    std::filesystem::remove(second_);
    channel_.emplace(stream_.Writer());
  }

  void Open(const std::string& path) {
    errno = 0;
    opened_ = channel_->OpenFile(path);
    EXPECT_TRUE(opened_ || errno != 0);
  }

  int WriteLine(const std::string& text) { return channel_->WriteLine(text.data(), text.size()); }

  /// The channel has no file open but, maybe, that one.
  void ExpectOpenOn(const std::string& path, std::size_t count) const {
    EXPECT_EQ(DescriptorTable::OpenOn(path).size(), count);
    EXPECT_EQ(OpenFiles().size(), count);
  }

  std::vector<int> OpenFiles() const {
    std::vector<int> all = DescriptorTable::OpenOn(first_);
    const std::vector<int> second = DescriptorTable::OpenOn(second_);
    all.insert(all.end(), second.begin(), second.end());
    return all;
  }

  /// What a channel never does itself.
  void CloseFiles() const {
    for (const int descriptor : OpenFiles()) {
      close(descriptor);
    }
  }

  const TemporaryDirectory directory_;
  const std::string first_ = directory_ / "first";
  const std::string second_ = directory_ / "second";
  const TestPipe stream_;
  std::optional<LineChannel> channel_;
  bool opened_ = false;
};

// Lines go to the file from now on, or on to the stream where the file was refused.
TEST_F(ChannelFileFaultsTest, FirstFile) {
  const auto check = [&](const auto& attack) {
    EXPECT_TRUE(opened_ || !attack.Passes());
    EXPECT_EQ(WriteLine("next"), 0);
    EXPECT_EQ(stream_.Drain(), opened_ ? "" : "next\n");
    ExpectOpenOn(first_, opened_ ? 1 : 0);
    if (opened_) {
      EXPECT_EQ(FileContent::Read(first_), "next\n");
    }
    CloseFiles();
  };
  EXPECT_THAT(FailEachSystemCall([&] { Prepare(); }, [&] { Open(first_); }, check),
              ElementsAre("open", "close", "fstat", "fcntl", "getrlimit"));
}

// The second file takes the place of the first, or lines go on to the first.
TEST_F(ChannelFileFaultsTest, SecondFile) {
  const auto prepare = [&] {
    Prepare();
    Open(first_);
    EXPECT_EQ(WriteLine("before"), 0);
  };
  const auto check = [&](const auto& attack) {
    EXPECT_TRUE(opened_ || !attack.Passes());
    EXPECT_EQ(WriteLine("next"), 0);
    ExpectOpenOn(opened_ ? second_ : first_, 1);
    EXPECT_EQ(FileContent::Read(first_), opened_ ? "before\n" : "before\nnext\n");
    if (opened_) {
      EXPECT_EQ(FileContent::Read(second_), "next\n");
    }
    CloseFiles();
  };
  EXPECT_THAT(FailEachSystemCall(
                  prepare, [&] { Open(second_); }, check),
              ElementsAre("open", "close", "fstat", "dup3", "getrlimit"));
}

// The host closed the channel's descriptor. The file is opened anew at the next look that can.
TEST_F(ChannelFileFaultsTest, FileThatTheHostHasClosed) {
  const auto prepare = [&] {
    Prepare();
    Open(first_);
    EXPECT_EQ(WriteLine("before"), 0);
    CloseFiles();
    SystemCalls::Advance(kLookMilliseconds);
  };
  const auto check = [&](const auto& attack) {
    SystemCalls::Advance(kLookMilliseconds);
    EXPECT_EQ(WriteLine("next"), 0);
    ExpectOpenOn(first_, 1);
    const std::string content = FileContent::Read(first_);
    EXPECT_TRUE(HoldsWholeLines(content, "before\n", "line", "next"));
    EXPECT_TRUE(!attack.Passes() || content == "before\nline\nnext\n") << content;
    CloseFiles();
  };
  EXPECT_THAT(FailEachSystemCall(
                  prepare, [&] { WriteLine("line"); }, check),
              ElementsAre("open", "close", "fstat", "fcntl", "write", "getrlimit"));
}

// Asking where a relative name stands fails, too, outside the calls that can be made to fail.
TEST_F(ChannelFileFaultsTest, RelativeNameWhereTheWorkingDirectoryIsGone) {
  const auto open = [&] {
    const std::string gone = directory_ / "gone";
    std::filesystem::create_directory(gone);
    std::filesystem::current_path(gone);
    std::filesystem::remove(gone);
    Prepare();
    Open("relative");
    EXPECT_FALSE(opened_);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(WriteLine("next"), 0);
    EXPECT_EQ(stream_.Drain(), "next\n");
  };
  EXPECT_EQ(ChildProcess::Run(open), "exited with 0");
}

}  // namespace
