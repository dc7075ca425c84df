// Ticks and durations as people read them.
#include <gtest/gtest.h>

#include "Time.h"

namespace vmetrics {
namespace {

TEST(TimeTest, ATickIsShownInUtcToTheMillisecond) {
  EXPECT_EQ(UtcTime(1795277057733), "2026-11-21 16:04:17.733");
  EXPECT_EQ(UtcTime(0), "1970-01-01 00:00:00.000");
  EXPECT_EQ(UtcTime(253402300799999), "9999-12-31 23:59:59.999");
}

TEST(TimeTest, ADurationIsShownInTheUnitThatSuitsIt) {
  EXPECT_EQ(HumanDuration(0), "0 ms");
  EXPECT_EQ(HumanDuration(999), "999 ms");
  EXPECT_EQ(HumanDuration(1000), "1.00 s");
  EXPECT_EQ(HumanDuration(1254), "1.25 s");
  EXPECT_EQ(HumanDuration(1255), "1.26 s");
  EXPECT_EQ(HumanDuration(59994), "59.99 s");
  EXPECT_EQ(HumanDuration(123000), "2 min 03 s");
  EXPECT_EQ(HumanDuration(11100000), "3 h 05 min");
  EXPECT_EQ(HumanDuration(187200000), "2 d 04 h");
}

TEST(TimeTest, ADurationIsRoundedBeforeItsUnitIsChosen) {
  EXPECT_EQ(HumanDuration(59995), "1 min 00 s");
  EXPECT_EQ(HumanDuration(3599499), "59 min 59 s");
  EXPECT_EQ(HumanDuration(3599500), "1 h 00 min");
  EXPECT_EQ(HumanDuration(86369999), "23 h 59 min");
  EXPECT_EQ(HumanDuration(86370000), "1 d 00 h");
  EXPECT_EQ(HumanDuration(171000000), "2 d 00 h");
}

TEST(TimeTest, ANegativeDurationHasASign) {
  EXPECT_EQ(HumanDuration(-1), "-1 ms");
  EXPECT_EQ(HumanDuration(-123000), "-2 min 03 s");
}

}  // namespace
}  // namespace vmetrics
