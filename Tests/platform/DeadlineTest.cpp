#include <gtest/gtest.h>

#include "Deadline.h"

namespace {

TEST(DeadlineTest, HasNotPassedWhileThereIsTimeLeft) {
  Deadline inAnHour(3'600'000);
  EXPECT_FALSE(inAnHour.Passed());
  EXPECT_GT(inAnHour.MillisecondsLeft(), 0);
  EXPECT_LE(inAnHour.MillisecondsLeft(), 3'600'000);
}

TEST(DeadlineTest, HasPassedWhenNoTimeIsLeft) {
  Deadline now(0);
  EXPECT_TRUE(now.Passed());
  EXPECT_EQ(now.MillisecondsLeft(), 0);
}

TEST(DeadlineTest, NeverLeavesLessThanNothing) {
  Deadline anHourAgo(-3'600'000);
  EXPECT_TRUE(anHourAgo.Passed());
  EXPECT_EQ(anHourAgo.MillisecondsLeft(), 0);
}

TEST(DeadlineTest, StartsWhenItIsFirstAsked) {
  Deadline deadline(1);
  const long made = Deadline::Milliseconds(CLOCK_MONOTONIC);
  while (Deadline::Milliseconds(CLOCK_MONOTONIC) < made + 3) {
  }
  EXPECT_EQ(deadline.MillisecondsLeft(), 1);
}

TEST(DeadlineTest, PassesWhenItsTimeIsOver) {
  Deadline deadline(1);
  while (!deadline.Passed()) {
  }
  EXPECT_EQ(deadline.MillisecondsLeft(), 0);
}

TEST(DeadlineTest, ReadsAClockInMilliseconds) {
  timespec before;
  timespec after;
  clock_gettime(CLOCK_REALTIME, &before);
  const long read = Deadline::Milliseconds(CLOCK_REALTIME);
  clock_gettime(CLOCK_REALTIME, &after);
  EXPECT_GE(read, before.tv_sec * 1000 + before.tv_nsec / 1'000'000);
  EXPECT_LE(read, after.tv_sec * 1000 + after.tv_nsec / 1'000'000);
}

}  // namespace
