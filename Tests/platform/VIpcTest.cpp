#include <gtest/gtest.h>

#include <cstdint>

#include "VIpc.h"

namespace {

/// Header words of one distinct byte each, then a body; not at an aligned address.
constexpr char kBytes[] =
    "."
    "\x01\0\0\0"
    "\x02\0\0\0"
    "\x03\0\0\0"
    "\x04\0\0\0"
    "\xFE\xFF\xFF\xFF"
    "\x06\0\0\0"
    "body";

TEST(VIpcTest, TheHeaderStandsAtItsOffsets) {
  static_assert(alignof(VMessage) == 1, "a message may stand at any address");
  const auto* const message = reinterpret_cast<const VMessage*>(kBytes + 1);
  // By value: no reference may be bound to what stands at an odd address.
  EXPECT_EQ(std::uint32_t{message->reserved0}, 1U);
  EXPECT_EQ(std::int32_t{message->srcModuleId}, 2);
  EXPECT_EQ(std::uint32_t{message->reserved8}, 3U);
  EXPECT_EQ(std::int32_t{message->dstModuleId}, 4);
  EXPECT_EQ(std::int32_t{message->msgType}, -2);
  EXPECT_EQ(std::uint32_t{message->reserved20}, 6U);
}

TEST(VIpcTest, TheBodyFollowsTheHeader) {
  const auto* const message = reinterpret_cast<const VMessage*>(kBytes + 1);
  EXPECT_EQ(sizeof(VMessage), 24U);
  EXPECT_STREQ(message->body, "body");
}

}  // namespace
