#include <gtest/gtest.h>

#include <ctime>

#include "VDateTime.h"

namespace {

unsigned long SystemMilliseconds() {
  timespec now;
  clock_gettime(CLOCK_REALTIME, &now);
  return static_cast<unsigned long>(now.tv_sec) * 1000 +
         static_cast<unsigned long>(now.tv_nsec) / 1'000'000;
}

TEST(VDateTimeTest, TheTickIsTheSystemClockInMilliseconds) {
  const unsigned long before = SystemMilliseconds();
  const unsigned long tick = VDateTime::GetCurrentTick();
  const unsigned long after = SystemMilliseconds();
  EXPECT_LE(before, tick);
  EXPECT_LE(tick, after);
}

}  // namespace
