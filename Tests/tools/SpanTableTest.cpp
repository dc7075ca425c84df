#include <gtest/gtest.h>

#include <cstdint>

#include "check/SpanTable.h"

namespace vmetrics {
namespace {

TEST(SpanTableTest, EmptyTableHasNothing) {
  const SpanTable table;
  EXPECT_EQ(table.Find({0, 0}), nullptr);
}

TEST(SpanTableTest, EachHalfOfAnIdentifierCounts) {
  SpanTable table;
  table.Add({1, 2}, {0, 1});
  table.Add({2, 1}, {3, 4});
  EXPECT_EQ(*table.Find({1, 2}), (Place{0, 1}));
  EXPECT_EQ(*table.Find({2, 1}), (Place{3, 4}));
  EXPECT_EQ(table.Find({1, 1}), nullptr);
  EXPECT_EQ(table.Find({2, 2}), nullptr);
}

TEST(SpanTableTest, IdentifierMayBeZero) {
  SpanTable table;
  table.Add({0, 0}, {0, 1});
  EXPECT_EQ(*table.Find({0, 0}), (Place{0, 1}));
}

TEST(SpanTableTest, AllIsFoundHoweverMuchThereIs) {
  SpanTable table;
  constexpr std::uint32_t kCount = 100000;  // Numbers in a row, which a poor hash would crowd.
  for (std::uint32_t i = 0; i < kCount; ++i) {
    table.Add({i, std::uint64_t{i} << 32U}, {i & 7U, i + 1});
  }
  for (std::uint32_t i = 0; i < kCount; ++i) {
    const Place* place = table.Find({i, std::uint64_t{i} << 32U});
    ASSERT_NE(place, nullptr) << i;
    ASSERT_EQ(*place, (Place{i & 7U, i + 1})) << i;
  }
  EXPECT_EQ(table.Find({kCount, std::uint64_t{kCount} << 32U}), nullptr);
}

}  // namespace
}  // namespace vmetrics
