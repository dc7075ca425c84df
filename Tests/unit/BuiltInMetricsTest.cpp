#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "CatalogueTable.h"
#include "VMetrics/BuiltInMetrics.h"

namespace {

using testing::ElementsAre;
using testing::Pair;
using vmetrics::BuiltInMetric;
using vmetrics::kBuiltInEvents;
using vmetrics::kBuiltInMetrics;

template <typename Rows>
std::vector<std::string> SortedRows(const Rows& rows) {
  std::vector<std::string> lines;
  for (const auto& row : rows) {
    lines.push_back(CatalogueRow(row.key, {row.type, row.name, row.privateFlag}));
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

template <typename Rows>
std::map<std::string, int> CountByType(const Rows& rows) {
  std::map<std::string, int> counts;
  for (const auto& row : rows) {
    ++counts[row.type];
  }
  return counts;
}

/// The rows of each name.
std::map<std::string, std::vector<BuiltInMetric>> MetricsByName() {
  std::map<std::string, std::vector<BuiltInMetric>> byName;
  for (const BuiltInMetric& row : kBuiltInMetrics) {
    byName[row.name].push_back(row);
  }
  return byName;
}

constexpr std::uint32_t kSideBits = 0x00FF0000;
constexpr std::uint32_t kServerSide = 0x000A0000;
constexpr std::uint32_t kClientSide = 0x000B0000;

std::uint32_t Group(const BuiltInMetric& row) { return row.key >> 24; }

TEST(BuiltInMetricsTest, HasTheGoldenMetrics) {
  EXPECT_EQ(SortedRows(kBuiltInMetrics), GoldenRows("numeric_catalogue.tsv"));
}

TEST(BuiltInMetricsTest, HasTheGoldenEvents) {
  EXPECT_EQ(SortedRows(kBuiltInEvents), GoldenRows("string_catalogue.tsv"));
}

TEST(BuiltInMetricsTest, HasNoMetricTwice) {
  std::set<std::uint32_t> keys;
  for (const BuiltInMetric& row : kBuiltInMetrics) {
    EXPECT_TRUE(keys.insert(row.key).second) << CatalogueRow(row.key, {});
  }
  EXPECT_EQ(keys.size(), 121U);
}

TEST(BuiltInMetricsTest, HasNoEventTwice) {
  std::set<std::string> keys;
  for (const vmetrics::BuiltInEvent& row : kBuiltInEvents) {
    EXPECT_TRUE(keys.insert(row.key).second) << row.key;
  }
  EXPECT_EQ(keys.size(), 13U);
}

TEST(BuiltInMetricsTest, HasSoManyMetricsOfEachType) {
  EXPECT_THAT(CountByType(kBuiltInMetrics),
              ElementsAre(Pair("bool", 1), Pair("double", 4), Pair("enum", 6), Pair("int", 38),
                          Pair("json", 9), Pair("string", 56), Pair("uint64_t", 7)));
}

TEST(BuiltInMetricsTest, HasSoManyEventsOfEachType) {
  EXPECT_THAT(CountByType(kBuiltInEvents), ElementsAre(Pair("json", 12), Pair("string", 1)));
}

TEST(BuiltInMetricsTest, KeepsThesePrivateAndNoOthers) {
  std::multiset<std::string> names;
  for (const BuiltInMetric& row : kBuiltInMetrics) {
    const std::string flag = row.privateFlag;
    EXPECT_TRUE(flag == "0" || flag == "1") << CatalogueRow(row.key, {}) << flag;
    if (flag == "1") {
      names.insert(row.name);
    }
  }
  EXPECT_THAT(names, ElementsAre("cameraList", "osEvent", "pcscHookProcess", "printerList",
                                 "topNcpu", "topNcpu", "topNhandle", "topNhandle", "topNmemory",
                                 "topNmemory", "usbInfo", "usbList"));
}

TEST(BuiltInMetricsTest, KeepsNoEventPrivate) {
  for (const vmetrics::BuiltInEvent& row : kBuiltInEvents) {
    EXPECT_STREQ(row.privateFlag, "0") << row.key;
  }
}

TEST(BuiltInMetricsTest, NumbersEveryMetricAsOneOfASide) {
  for (const BuiltInMetric& row : kBuiltInMetrics) {
    const std::uint32_t side = row.key & kSideBits;
    EXPECT_TRUE(side == kServerSide || side == kClientSide) << CatalogueRow(row.key, {});
    EXPECT_TRUE(Group(row) >= 0x11 && Group(row) <= 0x36) << CatalogueRow(row.key, {});
  }
}

TEST(BuiltInMetricsTest, Names31MetricsOnBothSidesAlike) {
  int onBothSides = 0;
  for (const auto& [name, rows] : MetricsByName()) {
    if (rows.size() == 1) {
      continue;
    }
    ASSERT_EQ(rows.size(), 2U) << name;
    EXPECT_EQ(Group(rows[0]), Group(rows[1])) << name;
    EXPECT_EQ((rows[0].key ^ rows[1].key) & kSideBits, kServerSide ^ kClientSide) << name;
    EXPECT_STREQ(rows[0].type, rows[1].type) << name;
    ++onBothSides;
  }
  EXPECT_EQ(onBothSides, 31);
}

TEST(BuiltInMetricsTest, HasOneInputMetricAndItHasIndexThree) {
  std::vector<std::uint32_t> keys;
  for (const BuiltInMetric& row : kBuiltInMetrics) {
    if (Group(row) == 0x13) {
      keys.push_back(row.key);
    }
  }
  EXPECT_THAT(keys, ElementsAre(0x130B0003U));
}

TEST(BuiltInMetricsTest, NumbersEveryOtherSideOfAGroupWithoutAGap) {
  std::map<std::uint32_t, std::set<std::uint32_t>> indices;
  for (const BuiltInMetric& row : kBuiltInMetrics) {
    if (Group(row) != 0x13) {
      indices[row.key >> 16].insert(row.key & 0xFFFF);
    }
  }
  for (const auto& [side, used] : indices) {
    EXPECT_EQ(*used.rbegin() + 1, used.size()) << CatalogueRow(side << 16, {});
  }
}

}  // namespace
