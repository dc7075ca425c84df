#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <string>

#include "ChildProcess.h"
#include "FileSizeLimit.h"
#include "SignalGuard.h"

namespace {

constexpr char kExited[] = "exited with 0";

bool IsPending(int signal) {
  sigset_t pending;
  sigpending(&pending);
  return sigismember(&pending, signal) == 1;
}

bool IsBlocked(int signal) {
  sigset_t mask;
  pthread_sigmask(SIG_BLOCK, nullptr, &mask);
  return sigismember(&mask, signal) == 1;
}

void Block(int signal) {
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, signal);
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

/// For either signal; a body runs in a process of its own, which the signal would kill.
class SignalGuardTest : public testing::TestWithParam<int> {
 protected:
  const int signal_ = GetParam();
};

INSTANTIATE_TEST_SUITE_P(SigpipeAndSigxfsz, SignalGuardTest, testing::Values(SIGPIPE, SIGXFSZ));

TEST_P(SignalGuardTest, DiscardTakesTheSignalAway) {
  EXPECT_EQ(ChildProcess::Run([&] {
              signal(signal_, SIG_DFL);
              SignalGuard guard;
              raise(signal_);
              EXPECT_TRUE(IsPending(signal_));
              guard.Discard();
              EXPECT_FALSE(IsPending(signal_));
            }),
            kExited);
}

TEST_P(SignalGuardTest, TheHostsMaskComesBack) {
  EXPECT_EQ(ChildProcess::Run([&] {
              Block(SIGUSR1);
              {
                const SignalGuard guard;
                EXPECT_TRUE(IsBlocked(signal_));
              }
              EXPECT_FALSE(IsBlocked(signal_));
              EXPECT_TRUE(IsBlocked(SIGUSR1));
            }),
            kExited);
}

TEST_P(SignalGuardTest, ASignalThatTheHostBlocksStaysBlocked) {
  EXPECT_EQ(ChildProcess::Run([&] {
              Block(signal_);
              {
                SignalGuard guard;
                raise(signal_);
                guard.Discard();
              }
              EXPECT_TRUE(IsBlocked(signal_));
              EXPECT_FALSE(IsPending(signal_));  // It was ours.
            }),
            kExited);
}

TEST_P(SignalGuardTest, ASignalThatWasPendingBeforeStaysPending) {
  EXPECT_EQ(ChildProcess::Run([&] {
              Block(signal_);
              raise(signal_);
              {
                SignalGuard guard;
                guard.Discard();
              }
              EXPECT_TRUE(IsPending(signal_));
            }),
            kExited);
}

TEST_P(SignalGuardTest, OneThatIsPendingDoesNotKeepTheOther) {
  EXPECT_EQ(ChildProcess::Run([&] {
              const int other = signal_ == SIGPIPE ? SIGXFSZ : SIGPIPE;
              Block(signal_);
              raise(signal_);
              SignalGuard guard;
              raise(other);
              guard.Discard();
              EXPECT_FALSE(IsPending(other));
            }),
            kExited);
}

TEST_P(SignalGuardTest, KeepsErrno) {
  errno = EDOM;
  {
    SignalGuard guard;
    guard.Discard();
    EXPECT_EQ(errno, EDOM);
  }
  EXPECT_EQ(errno, EDOM);
}

TEST(FileSizeLimitTest, IsThereOnceItIsSet) {
  EXPECT_EQ(ChildProcess::Run([] {
              FileSizeLimit::Lift();
              EXPECT_FALSE(HasFileSizeLimit());
              FileSizeLimit::Set(1'000'000);
              EXPECT_TRUE(HasFileSizeLimit());
            }),
            kExited);
}

}  // namespace
