#include <gmock/gmock.h>

#include "MetricId.h"

namespace vmetrics {
namespace {

using testing::Eq;
using testing::Optional;

TEST(MetricIdTest, ConsistsOfGroupSideAndIndex) {
  EXPECT_EQ(GroupOf(0x120A0001), 0x12U);
  EXPECT_EQ(SideOf(0x120A0001), 0x0AU);
  EXPECT_EQ(GroupOf(-5), 0xFFU);
  EXPECT_EQ(SideOf(-5), 0xFFU);
}

TEST(MetricIdTest, IsWrittenWithAllItsDigits) {
  EXPECT_EQ(HexadecimalId(1), "0x00000001");
  EXPECT_EQ(HexadecimalId(-1), "0xFFFFFFFF");
  EXPECT_EQ(HexadecimalByte(0x0A), "0x0A");
}

TEST(MetricIdTest, IsReadInDecimal) {
  EXPECT_THAT(ParseMetricId("302645249"), Optional(0x120A0001));
  EXPECT_THAT(ParseMetricId("-5"), Optional(-5));
  EXPECT_THAT(ParseMetricId("-2147483648"), Optional(-2147483647 - 1));
  EXPECT_THAT(ParseMetricId("4294967295"), Optional(-1));
}

TEST(MetricIdTest, IsReadInHexadecimal) {
  EXPECT_THAT(ParseMetricId("0x120a0001"), Optional(0x120A0001));
  EXPECT_THAT(ParseMetricId("0X120A0001"), Optional(0x120A0001));
  EXPECT_THAT(ParseMetricId("0xFFFFFFFF"), Optional(-1));
}

TEST(MetricIdTest, IsNothingElse) {
  for (const char* text : {"", " 1", "1 ", "+1", "-", "0x", "0x-1", "0x1G", "12F", "4294967296",
                           "-2147483649", "99999999999999999999", "nox_user_connect"}) {
    EXPECT_THAT(ParseMetricId(text), Eq(std::nullopt)) << text;
  }
}

}  // namespace
}  // namespace vmetrics
