// Lines to a pipe and to a socket, on a machine that fails.

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

#include "FailEachSystemCall.h"
#include "LineChannel.h"
#include "LineRemains.h"
#include "TestPipe.h"

namespace {

using testing::ElementsAre;

int WriteLine(LineChannel& channel, const std::string& text) {
  return channel.WriteLine(text.data(), text.size());
}

/// Attacks the writing of `line` to a channel; `read` takes out what is in its stream.
template <typename Read>
std::vector<std::string> Attack(LineChannel& channel, const std::string& line, Read read) {
  int error = 0;
  const auto check = [&](const auto& attack) {
    EXPECT_TRUE(error == 0 || !attack.Passes());
    std::string content = read();
    EXPECT_EQ(WriteLine(channel, "next"), 0);
    content += read();
    EXPECT_TRUE(HoldsWholeLines(content, "", line, "next"));
    if (error == 0) {
      EXPECT_EQ(content, line + "\nnext\n");
    }
  };
  return FailEachSystemCall([] {}, [&] { error = WriteLine(channel, line); }, check);
}

TEST(StreamFaultsTest, LineToAPipe) {
  const TestPipe pipe;
  LineChannel channel(pipe.Writer());
  EXPECT_THAT(Attack(channel, "line", [&] { return pipe.Drain(); }),
              ElementsAre("open", "close", "fstat", "write", "poll"));
}

TEST(StreamFaultsTest, LineToAPipeInPieces) {
  const TestPipe pipe;
  LineChannel channel(pipe.Writer());
  EXPECT_THAT(Attack(channel, std::string(10'000, 'x'), [&] { return pipe.Drain(); }),
              ElementsAre("open", "close", "fstat", "write", "poll"));
}

TEST(StreamFaultsTest, LineToASocket) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends), 0);
  LineChannel channel(ends[0]);
  const auto readAll = [&] {
    std::string text;
    char piece[4096];
    for (ssize_t count = 0; (count = recv(ends[1], piece, sizeof piece, 0)) > 0;) {
      text.append(piece, static_cast<std::size_t>(count));
    }
    return text;
  };
  EXPECT_THAT(Attack(channel, std::string(10'000, 'x'), readAll),
              ElementsAre("open", "fstat", "send", "poll"));
  close(ends[0]);
  close(ends[1]);
}

// Nobody reads. The line is given up in time, whatever else goes wrong.
TEST(StreamFaultsTest, LineToAFullPipe) {
  const TestPipe pipe;
  LineChannel channel(pipe.Writer());
  int error = 0;
  std::size_t filled = 0;
  const auto check = [&](const auto&) {
    EXPECT_NE(error, 0);
    EXPECT_EQ(pipe.Drain(), std::string(filled, '.'));
    EXPECT_EQ(WriteLine(channel, "next"), 0);
    EXPECT_EQ(pipe.Drain(), "next\n");
  };
  EXPECT_THAT(FailEachSystemCall([&] { filled = pipe.Fill(); },
                                 [&] { error = WriteLine(channel, "lost"); }, check),
              ElementsAre("open", "close", "fstat", "poll"));
}

// The reader is gone, and a signal kills who does not keep it away.
TEST(StreamFaultsTest, LineToAPipeWhoseReaderIsGone) {
  TestPipe pipe;
  LineChannel channel(pipe.Writer());
  pipe.CloseReader();
  signal(SIGPIPE, SIG_DFL);
  int error = 0;
  const auto check = [&](const auto&) {
    EXPECT_NE(error, 0);
    EXPECT_EQ(WriteLine(channel, "next"), EPIPE);
  };
  EXPECT_THAT(FailEachSystemCall([] {}, [&] { error = WriteLine(channel, "lost"); }, check),
              ElementsAre("open", "close", "fstat", "write", "poll"));
}

}  // namespace
