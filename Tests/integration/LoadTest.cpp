#include <gtest/gtest.h>

#include "VMetrics.h"

namespace {

/// Looks at the catalogue while the program is still being initialised.
const std::size_t metricsAtStart = VMetrics::GetMetricsMap().size();
const std::size_t eventsAtStart = VMetrics::GetMetricsStringMap().size();

TEST(LoadTest, CatalogueIsThereBeforeTheHostsOwnObjects) {
  EXPECT_EQ(metricsAtStart, 121U);
  EXPECT_EQ(eventsAtStart, 13U);
}

}  // namespace
