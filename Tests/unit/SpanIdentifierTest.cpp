#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <random>
#include <set>
#include <string>

#include "DotRecord/SpanIdentifier.h"
#include "SpanMatchers.h"
#include "VMetrics.h"

namespace {

using vmetrics::SpanIdentifierFromSeed;

/// The same identifier by another way: the raw numbers of the generator, cut into halves and
/// printed.
std::string Recomputed(std::uint32_t seed) {
  std::mt19937 generator(seed);
  unsigned int high[5];
  unsigned int low[5];
  for (int i = 0; i < 5; ++i) {
    const auto draw = static_cast<std::uint32_t>(generator());
    high[i] = draw / 65536;
    low[i] = draw % 65536;
  }
  char text[64];
  std::snprintf(text, sizeof text, "%04x%04x-%04x-%04x-%04x-%04x%04x%04x", high[0], low[0], high[1],
                high[2], high[3], low[3], high[4], low[4]);
  return text;
}

// The first five numbers for the seed 5489 are known from the generator's publication:
// 3499211612, 581869302, 3890346734, 3586334585, 545404204.
TEST(SpanIdentifierTest, PublishedNumbersOfTheGeneratorMakeTheGroups) {
  EXPECT_EQ(SpanIdentifierFromSeed(5489), "d091bb5c-22ae-e7e1-d5c3-1f792082352c");
}

TEST(SpanIdentifierTest, SmallestAndLargestSeedsYieldKnownIdentifiers) {
  EXPECT_EQ(SpanIdentifierFromSeed(0), "8c7f0aac-97c4-b716-d821-ccc09a4eb343");
  EXPECT_EQ(SpanIdentifierFromSeed(1), "6ac1f425-ff47-b867-eebc-144800077eff");
  EXPECT_EQ(SpanIdentifierFromSeed(0x80000000), "26e9a91a-55d4-d20f-5c53-5c23c6870e45");
  EXPECT_EQ(SpanIdentifierFromSeed(0xFFFFFFFF), "18fe69a3-1c92-e991-900c-ac47c9fe37b4");
}

// Seeds found by search: in turn, each of the five numbers begins with sixteen zero bits.
TEST(SpanIdentifierTest, LeadingZerosOfTheFirstGroupStay) {
  EXPECT_EQ(SpanIdentifierFromSeed(111281), "0000da3d-3329-d650-e28b-c65fa8416768");
}

TEST(SpanIdentifierTest, SecondNumberBelow65536MakesTheSecondGroupZero) {
  EXPECT_EQ(SpanIdentifierFromSeed(6299), "4eb1506d-0000-984a-4716-461e3db59c3b");
}

TEST(SpanIdentifierTest, ThirdNumberBelow65536MakesTheThirdGroupZero) {
  EXPECT_EQ(SpanIdentifierFromSeed(195260), "0c0a20ca-cc27-0000-bc90-e8dcf937bcf4");
}

TEST(SpanIdentifierTest, FourthNumberBelow65536MakesTheFourthGroupZero) {
  EXPECT_EQ(SpanIdentifierFromSeed(116949), "56e5c12b-67ff-2f6f-0000-9655c4c45962");
}

TEST(SpanIdentifierTest, LeadingZerosOfTheFifthNumberStayInsideTheLastGroup) {
  EXPECT_EQ(SpanIdentifierFromSeed(32278), "e720f03b-5096-6867-d871-029f00007a7b");
}

TEST(SpanIdentifierTest, EverySeedAgreesWithTheRecomputation) {
  for (std::uint32_t seed = 0; seed < 2000; ++seed) {
    const std::uint32_t scattered = seed * 2654435761U;
    ASSERT_EQ(SpanIdentifierFromSeed(scattered), Recomputed(scattered)) << "seed " << scattered;
  }
}

TEST(SpanIdentifierTest, SameSeedRepeatsTheIdentifier) {
  EXPECT_EQ(SpanIdentifierFromSeed(77), SpanIdentifierFromSeed(77));
  EXPECT_NE(SpanIdentifierFromSeed(77), SpanIdentifierFromSeed(78));
}

TEST(SpanIdentifierTest, FreshIdentifiersHaveTheForm) {
  for (int i = 0; i < 1000; ++i) {
    const std::string identifier = VMetrics::GenerateUuid();
    ASSERT_TRUE(IsSpanIdentifier(identifier)) << identifier;
  }
}

// An identifier is as good as the seed that the system's random device gives, and some processors'
// repeat themselves now and then: two repetitions in forty are let through.
TEST(SpanIdentifierTest, FreshIdentifiersDiffer) {
  std::set<std::string> identifiers;
  for (int i = 0; i < 40; ++i) {
    identifiers.insert(VMetrics::GenerateUuid());
  }
  EXPECT_GE(identifiers.size(), 38U);
}

TEST(SpanIdentifierTest, MakingOneTouchesNothingOfThePlatform) {
  FakePlatform::Reset();
  VMetrics::GenerateUuid();
  EXPECT_TRUE(FakePlatform::FileOperations().empty());
  EXPECT_TRUE(FakePlatform::LogLines().empty());
  EXPECT_TRUE(FakePlatform::MetricsLines().empty());
  EXPECT_EQ(FakePlatform::TicksRead(), 0);
}

}  // namespace
