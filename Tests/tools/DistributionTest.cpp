#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "stats/Distribution.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;

constexpr std::size_t kPlenty = std::size_t{1} << 24U;

class DistributionTest : public testing::Test {
 protected:
  void AddAll(const std::vector<double>& values) {
    for (const double value : values) {
      distribution_.Add(value);
    }
  }

  DistributionBudget budget_{kPlenty};
  Distribution distribution_{budget_};
};

TEST_F(DistributionTest, OfNothingAllIsZero) {
  EXPECT_EQ(distribution_.Count(), 0U);
  EXPECT_EQ(distribution_.Least(), 0);
  EXPECT_EQ(distribution_.Greatest(), 0);
  EXPECT_THAT(distribution_.Percentiles({50, 100}), ElementsAre(0, 0));
}

TEST_F(DistributionTest, OneValueIsAllPercentiles) {
  AddAll({41.5});
  EXPECT_THAT(distribution_.Percentiles({1, 50, 100}), ElementsAre(41.5, 41.5, 41.5));
}

TEST_F(DistributionTest, PercentilesAreOfNearestRank) {
  AddAll({15, 20, 35, 40, 50});
  EXPECT_THAT(distribution_.Percentiles({5, 20, 21, 40, 50, 100}),
              ElementsAre(15, 15, 20, 20, 35, 50));
}

TEST_F(DistributionTest, OfAnEvenNumberTheMedianIsTheLowerOne) {
  AddAll({1, 2, 3, 4});
  EXPECT_THAT(distribution_.Percentiles({50}), ElementsAre(2));
}

TEST_F(DistributionTest, EqualValuesCountEach) {
  AddAll({7, 7, 7, 1, 1});
  EXPECT_EQ(distribution_.Count(), 5U);
  EXPECT_THAT(distribution_.Percentiles({40, 41}), ElementsAre(1, 7));
}

TEST_F(DistributionTest, NegativeNumbersComeFirst) {
  AddAll({0.25, -3, 0, -0.5, -1e300});
  EXPECT_THAT(distribution_.Percentiles({20, 40, 60, 80, 100}),
              ElementsAre(-1e300, -3, -0.5, 0, 0.25));
  EXPECT_EQ(distribution_.Least(), -1e300);
  EXPECT_EQ(distribution_.Greatest(), 0.25);
}

TEST_F(DistributionTest, ZeroHasNoSign) {
  AddAll({-0.0, 0.0});
  EXPECT_FALSE(std::signbit(distribution_.Percentiles({50})[0]));
}

TEST_F(DistributionTest, NumbersNextToZeroAreZero) {
  AddAll({std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::min()});
  EXPECT_THAT(distribution_.Percentiles({50, 100}),
              ElementsAre(0, std::numeric_limits<double>::min()));
}

TEST_F(DistributionTest, GreatestNumbersAreExact) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  AddAll({-kGreatest, kGreatest});
  EXPECT_THAT(distribution_.Percentiles({50, 100}), ElementsAre(-kGreatest, kGreatest));
}

TEST_F(DistributionTest, ManyDistinctValuesAreExact) {
  for (std::size_t value = Distribution::kMostDistinct; value > 0; --value) {
    distribution_.Add(static_cast<double>(value));
  }
  EXPECT_EQ(distribution_.RelativeError(), 0);
  EXPECT_THAT(distribution_.Percentiles({50, 99}), ElementsAre(32768, 64881));
}

TEST_F(DistributionTest, OneMoreIsCountedInBuckets) {
  for (std::size_t value = 1; value <= Distribution::kMostDistinct + 1; ++value) {
    distribution_.Add(static_cast<double>(value));
  }
  EXPECT_EQ(distribution_.RelativeError(), 1.0 / 1024);
  EXPECT_EQ(distribution_.Count(), 65537U);
  EXPECT_EQ(distribution_.Least(), 1);
  EXPECT_EQ(distribution_.Greatest(), 65537);
  const std::vector<double> percentiles = distribution_.Percentiles({1, 50, 99});
  EXPECT_NEAR(percentiles[0], 656, 656.0 / 1024);
  EXPECT_NEAR(percentiles[1], 32769, 32769.0 / 1024);
  EXPECT_NEAR(percentiles[2], 64882, 64882.0 / 1024);
}

TEST_F(DistributionTest, NoPercentileIsBeyondTheExtremes) {
  for (std::size_t value = 0; value <= Distribution::kMostDistinct; ++value) {
    distribution_.Add(1e6 + static_cast<double>(value) / 1e6);
  }
  EXPECT_GT(distribution_.RelativeError(), 0);
  EXPECT_EQ(distribution_.Percentiles({50})[0], 1e6);  // The middle of its bucket is 999,936.
}

TEST_F(DistributionTest, ZeroStaysZeroInBuckets) {
  for (std::size_t value = 0; value <= Distribution::kMostDistinct; ++value) {
    distribution_.Add(static_cast<double>(value));
    distribution_.Add(0);
  }
  EXPECT_EQ(distribution_.Percentiles({50})[0], 0);
}

TEST_F(DistributionTest, ValuesOfAllSizesKeepTheBound) {
  std::vector<double> values;
  for (int exponent = -1000; exponent <= 1000; ++exponent) {
    for (int step = 0; step < 50; ++step) {
      values.push_back(std::ldexp(1 + step / 50.0, exponent));
    }
  }
  AddAll(values);
  const double error = distribution_.RelativeError();
  EXPECT_GT(error, 0);
  EXPECT_LT(error, 0.05);
  for (const unsigned percent : {1U, 33U, 50U, 90U, 99U}) {
    const double exact = values[(percent * values.size() + 99) / 100 - 1];
    EXPECT_NEAR(distribution_.Percentiles({percent})[0], exact, exact * error);
  }
}

TEST(DistributionBudgetTest, WithoutMemoryFewValuesAreExact) {
  DistributionBudget budget(0);
  Distribution distribution(budget);
  for (int value = 1; value <= 190; ++value) {
    distribution.Add(value);
  }
  EXPECT_EQ(distribution.RelativeError(), 0);
  EXPECT_THAT(distribution.Percentiles({50, 99}), ElementsAre(95, 189));
}

TEST(DistributionBudgetTest, WithoutMemoryManyValuesKeepTheBoundThatIsTold) {
  DistributionBudget budget(0);
  Distribution distribution(budget);
  for (int value = 1; value <= 100000; ++value) {
    distribution.Add(value);
  }
  const double error = distribution.RelativeError();
  EXPECT_GT(error, 0);
  EXPECT_LE(error, 0.5);
  EXPECT_NEAR(distribution.Percentiles({50})[0], 50000, 50000 * error);
}

TEST(DistributionBudgetTest, WithoutMemoryValuesOfAllSizesAreCounted) {
  DistributionBudget budget(0);
  Distribution distribution(budget);
  for (int exponent = -1022; exponent <= 1023; ++exponent) {
    distribution.Add(std::ldexp(1, exponent));
    distribution.Add(-std::ldexp(1, exponent));
  }
  EXPECT_EQ(distribution.Count(), 4092U);
  EXPECT_LE(distribution.RelativeError(), 0.5);
  EXPECT_EQ(distribution.Least(), -std::ldexp(1, 1023));
}

TEST(DistributionBudgetTest, TakesNoMoreThanThereIs) {
  DistributionBudget budget(10);
  EXPECT_FALSE(budget.Take(11));
  EXPECT_TRUE(budget.Take(10));
  EXPECT_FALSE(budget.Take(1));
}

}  // namespace
}  // namespace vmetrics
