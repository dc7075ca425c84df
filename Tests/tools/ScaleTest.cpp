// Bars to scale.
#include <gtest/gtest.h>

#include "trace/Bar.h"

namespace vmetrics {
namespace {

// Each column stands for 8 milliseconds, so that an eighth of it is one.
const Scale kBlocks(1000, 1080, 10, true);
const Scale kAscii(1000, 1080, 10, false);

TEST(ScaleTest, TheWholeScaleIsFull) {
  EXPECT_EQ(kBlocks.Bar(1000, 1080), "██████████");
  EXPECT_EQ(kAscii.Bar(1000, 1080), "==========");
}

TEST(ScaleTest, TheRightEdgeIsDrawnToAnEighth) {
  EXPECT_EQ(kBlocks.Bar(1000, 1001), "▏");
  EXPECT_EQ(kBlocks.Bar(1000, 1004), "▌");
  EXPECT_EQ(kBlocks.Bar(1000, 1007), "▉");
  EXPECT_EQ(kBlocks.Bar(1000, 1008), "█");
  EXPECT_EQ(kBlocks.Bar(1000, 1009), "█▏");
}

TEST(ScaleTest, TheLeftEdgeIsDrawnToAHalf) {
  EXPECT_EQ(kBlocks.Bar(1003, 1016), "██");
  EXPECT_EQ(kBlocks.Bar(1004, 1016), "▐█");
  EXPECT_EQ(kBlocks.Bar(1007, 1016), "▐█");
  EXPECT_EQ(kBlocks.Bar(1008, 1016), " █");
}

TEST(ScaleTest, WhatTakesNoTimeIsSeen) {
  EXPECT_EQ(kBlocks.Bar(1000, 1000), "▏");
  EXPECT_EQ(kBlocks.Bar(1012, 1012), " ▕");
  EXPECT_EQ(kBlocks.Bar(1080, 1080), "         ▕");
  EXPECT_EQ(kAscii.Bar(1012, 1012), " |");
  EXPECT_EQ(kAscii.Bar(1080, 1080), "         |");
}

TEST(ScaleTest, InAsciiTheRightEdgeIsRounded) {
  EXPECT_EQ(kAscii.Bar(1000, 1003), "|");
  EXPECT_EQ(kAscii.Bar(1000, 1011), "=");
  EXPECT_EQ(kAscii.Bar(1000, 1012), "==");
}

TEST(ScaleTest, WhatReachesBeyondTheScaleHasAnArrowThere) {
  EXPECT_EQ(kBlocks.Bar(0, 1016), "◂█");
  EXPECT_EQ(kBlocks.Bar(1064, 9999), "        █▸");
  EXPECT_EQ(kBlocks.Bar(0, 9999), "◂████████▸");
  EXPECT_EQ(kBlocks.Bar(0, 999), "◂");
  EXPECT_EQ(kBlocks.Bar(1081, 9999), "         ▸");
  EXPECT_EQ(kAscii.Bar(0, 9999), "<========>");
}

TEST(ScaleTest, AGapFillsTheColumnsThatItHasToItself) {
  EXPECT_EQ(kBlocks.Gap(1004, 1036), " ···");
  EXPECT_EQ(kAscii.Gap(1008, 1016), " .");
  EXPECT_EQ(kAscii.Gap(1009, 1010), "  .");
  EXPECT_EQ(kAscii.Gap(1079, 1080), "");
}

TEST(ScaleTest, AMarkStandsAtItsTimeOrAtTheSide) {
  EXPECT_EQ(kBlocks.Mark(1016, '!'), "  !");
  EXPECT_EQ(kBlocks.Mark(0, '!'), "!");
  EXPECT_EQ(kBlocks.Mark(9999, '!'), "         !");
}

TEST(ScaleTest, AScaleWithoutALengthHasItsBarAtTheLeft) {
  const Scale scale(5, 5, 10, true);
  EXPECT_EQ(scale.Bar(5, 5), "▏");
  EXPECT_EQ(scale.Bar(0, 9), "◂        ▸");
}

TEST(ScaleTest, AScaleHasOneColumnAtLeast) {
  const Scale scale(0, 10, 0, true);
  EXPECT_EQ(scale.Bar(0, 10), "█");
}

TEST(ScaleTest, TheLongestScaleInTheWidestTerminalDoesNotOverflow) {
  constexpr std::int64_t kDays = std::int64_t{62} * 24 * 3600 * 1000;
  EXPECT_EQ(Scale(0, kDays, 65535, false).Bar(0, kDays), std::string(65535, '='));
}

}  // namespace
}  // namespace vmetrics
