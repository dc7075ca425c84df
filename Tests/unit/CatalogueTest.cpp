// What is in the catalogue; what is added to it is in RegistrationTest.cpp.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "CatalogueTable.h"
#include "FrameworkTest.h"

namespace {

using testing::ElementsAre;

template <typename Map>
std::vector<std::string> Rows(const Map& catalogue) {
  std::vector<std::string> rows;
  for (const auto& [key, entry] : catalogue) {
    rows.push_back(CatalogueRow(key, entry));
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

using CatalogueTest = FrameworkTest;

TEST_F(CatalogueTest, HoldsTheBuiltInMetrics) {
  EXPECT_EQ(VMetrics::GetMetricsMap().size(), 121U);
  EXPECT_EQ(Rows(VMetrics::GetMetricsMap()), GoldenRows("numeric_catalogue.tsv"));
}

TEST_F(CatalogueTest, HoldsTheBuiltInEvents) {
  EXPECT_EQ(VMetrics::GetMetricsStringMap().size(), 13U);
  EXPECT_EQ(Rows(VMetrics::GetMetricsStringMap()), GoldenRows("string_catalogue.tsv"));
}

TEST_F(CatalogueTest, HandsOutTheLiveMaps) {
  EXPECT_EQ(&VMetrics::GetMetricsMap(), &VMetrics::GetMetricsMap());
  EXPECT_EQ(&VMetrics::GetMetricsStringMap(), &VMetrics::GetMetricsStringMap());
  VMetrics::GetMetricsMap()[770001] = {"int", "added", "0"};
  EXPECT_EQ(VMetrics::ToString(770001, "\x3C\0\0"), "{\"added\":60}");
}

TEST_F(CatalogueTest, StartsTheInputGroupAtIndexThree) {
  const MetricsMap& metrics = VMetrics::GetMetricsMap();
  EXPECT_EQ(metrics.count(0x130B0000), 0U);
  EXPECT_EQ(metrics.count(0x130B0001), 0U);
  EXPECT_EQ(metrics.count(0x130B0002), 0U);
  EXPECT_THAT(metrics.at(0x130B0003), ElementsAre("json", "inputRtt", "0"));
}

TEST_F(CatalogueTest, KeepsOnlyTheClientsPrinterListPrivate) {
  EXPECT_THAT(VMetrics::GetMetricsMap().at(0x170B0000), ElementsAre("string", "printerList", "1"));
  EXPECT_THAT(VMetrics::GetMetricsMap().at(0x170A0000), ElementsAre("string", "printerList", "0"));
}

TEST_F(CatalogueTest, EndsTheSystemGroupOfEachSideAtItsOwnIndex) {
  EXPECT_THAT(VMetrics::GetMetricsMap().at(0x2F0A000E),
              ElementsAre("string", "updateMoxStatus", "0"));
  EXPECT_EQ(VMetrics::GetMetricsMap().count(0x2F0B000E), 0U);
}

TEST_F(CatalogueTest, TellsUpperFromLowerCaseInEventIds) {
  const MetricsStringMap& events = VMetrics::GetMetricsStringMap();
  EXPECT_THAT(events.at("VMETRICS_USB_DRIVER_ERROR"), ElementsAre("string", "driverError", "0"));
  EXPECT_EQ(events.count("vmetrics_usb_driver_error"), 0U);
}

}  // namespace
