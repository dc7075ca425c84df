#include <gtest/gtest.h>

#include <csignal>

#include "CommandWatch.h"

namespace vmetrics {
namespace {

siginfo_t Signal(int number, int code) {
  siginfo_t signal = {};
  signal.si_signo = number;
  signal.si_code = code;
  return signal;
}

constexpr bool kLeadsSession = true;

TEST(CommandWatchTest, WhatKeysAndTheWindowCauseIsForTheWholeGroup) {
  for (const int number : {SIGINT, SIGQUIT, SIGTSTP, SIGTTIN, SIGTTOU, SIGWINCH}) {
    SCOPED_TRACE(number);
    EXPECT_TRUE(IsForWholeGroup(Signal(number, SI_KERNEL), kLeadsSession));
    EXPECT_TRUE(IsForWholeGroup(Signal(number, SI_KERNEL), !kLeadsSession));
  }
}

TEST(CommandWatchTest, EndOfTheTerminalIsToldToTheLeaderOfItsSessionAlone) {
  for (const int number : {SIGHUP, SIGCONT}) {
    SCOPED_TRACE(number);
    EXPECT_FALSE(IsForWholeGroup(Signal(number, SI_KERNEL), kLeadsSession));
    EXPECT_TRUE(IsForWholeGroup(Signal(number, SI_KERNEL), !kLeadsSession));
  }
}

TEST(CommandWatchTest, OtherSignalsOfTheSystemAreForOneProcess) {
  for (const int number : {SIGALRM, SIGTERM, SIGXCPU, SIGIO, SIGUSR1}) {
    SCOPED_TRACE(number);
    EXPECT_FALSE(IsForWholeGroup(Signal(number, SI_KERNEL), !kLeadsSession));
  }
}

TEST(CommandWatchTest, WhatProcessesSendIsForOneProcess) {
  for (const int code : {SI_USER, SI_QUEUE, SI_TKILL, SI_TIMER}) {
    SCOPED_TRACE(code);
    EXPECT_FALSE(IsForWholeGroup(Signal(SIGINT, code), !kLeadsSession));
  }
}

}  // namespace
}  // namespace vmetrics
