#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "stats/Comparison.h"

namespace vmetrics {
namespace {

Summary Step(const std::string& name, double median, std::uint64_t failures = 0,
             std::uint64_t count = 100) {
  Figures figures;
  figures.count = count;
  figures.failures = failures;
  figures.median = median;
  return {{std::nullopt, name, SeriesKey::kTimeless}, false, figures};
}

Summary Metric(int id, double median) {
  Summary summary = Step("value", median);
  summary.key.id = id;
  return summary;
}

Change Judged(const Summary& before, const Summary& after, const Rule& rule = {}) {
  return Compare({before}, {after}, rule).at(0);
}

TEST(ComparisonTest, MedianMayGrowByTheThreshold) {
  EXPECT_EQ(Judged(Step("a", 200), Step("a", 220)).verdict, Verdict::kSame);
  EXPECT_EQ(Judged(Step("a", 200), Step("a", 221)).verdict, Verdict::kWorse);
  EXPECT_TRUE(Judged(Step("a", 200), Step("a", 221)).medianGrew);
  EXPECT_EQ(Judged(Step("a", 200), Step("a", 100)).verdict, Verdict::kSame);
}

TEST(ComparisonTest, ThresholdIsTheUsers) {
  Rule rule;
  rule.threshold = 50;
  EXPECT_EQ(Judged(Step("a", 200), Step("a", 300), rule).verdict, Verdict::kSame);
  EXPECT_EQ(Judged(Step("a", 200), Step("a", 301), rule).verdict, Verdict::kWorse);
}

TEST(ComparisonTest, AnyGrowthBeyondTheThresholdCounts) {
  EXPECT_EQ(Judged(Step("a", 0), Step("a", 0)).verdict, Verdict::kSame);
  EXPECT_EQ(Judged(Step("a", 0), Step("a", 1)).verdict, Verdict::kWorse);
}

TEST(ComparisonTest, FewMillisecondsAreNoGrowthOnDemand) {
  Rule rule;
  rule.leastGrowth = 5;
  EXPECT_EQ(Judged(Step("a", 0), Step("a", 4), rule).verdict, Verdict::kSame);
  EXPECT_EQ(Judged(Step("a", 0), Step("a", 5), rule).verdict, Verdict::kWorse);
}

TEST(ComparisonTest, FailureRateMayGrowByTheThresholdInPoints) {
  const Change same = Judged(Step("a", 1, 20), Step("a", 1, 30));
  EXPECT_EQ(same.verdict, Verdict::kSame);
  const Change worse = Judged(Step("a", 1, 20), Step("a", 1, 31));
  EXPECT_EQ(worse.verdict, Verdict::kWorse);
  EXPECT_TRUE(worse.failureRateGrew);
  EXPECT_FALSE(worse.medianGrew);
}

TEST(ComparisonTest, OneRecordInEachLogIsJudged) {
  EXPECT_EQ(Judged(Step("a", 1, 0, 1), Step("a", 900, 0, 1)).verdict, Verdict::kWorse);
}

TEST(ComparisonTest, FewRecordsAreNotJudgedOnDemand) {
  Rule rule;
  rule.leastCount = 10;
  EXPECT_EQ(Judged(Step("a", 1, 0, 9), Step("a", 900), rule).verdict, Verdict::kFew);
  EXPECT_EQ(Judged(Step("a", 1), Step("a", 900, 0, 9), rule).verdict, Verdict::kFew);
  EXPECT_EQ(Judged(Step("a", 1, 0, 10), Step("a", 900, 0, 10), rule).verdict, Verdict::kWorse);
}

TEST(ComparisonTest, OutcomeIsThatOfStepsAlone) {
  const Outcome outcome = OutcomeOf(
      Compare({Step("b", 1), Step("same", 1), Step("worse", 1), Metric(1, 1)},
              {Step("a", 1), Step("c", 1), Step("same", 1), Step("worse", 9), Metric(2, 1)}, {}));
  EXPECT_EQ(outcome.judged, 2U);
  EXPECT_EQ(outcome.worse, 1U);
  EXPECT_EQ(outcome.notJudged, 3U);
}

TEST(ComparisonTest, MissingMedianHasNotGrown) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Judged(Step("a", kNone), Step("a", 900)).verdict, Verdict::kSame);
  EXPECT_EQ(Judged(Step("a", 1), Step("a", kNone)).verdict, Verdict::kSame);
}

TEST(ComparisonTest, MetricsAreNotJudged) {
  EXPECT_EQ(Judged(Metric(7, 1), Metric(7, 900)).verdict, Verdict::kNone);
}

TEST(ComparisonTest, AppearedAndVanishedOnesAreListedInOrder) {
  const auto changes = Compare({Step("a", 1), Step("b", 1), Metric(1, 1)},
                               {Step("b", 1), Step("c", 1), Metric(2, 1)}, {});
  std::vector<Verdict> verdicts;
  for (const Change& change : changes) {
    verdicts.push_back(change.verdict);
  }
  EXPECT_THAT(verdicts, testing::ElementsAre(Verdict::kGone, Verdict::kSame, Verdict::kAdded,
                                             Verdict::kGone, Verdict::kAdded));
  EXPECT_FALSE(changes[0].after);
  EXPECT_FALSE(changes[2].before);
}

TEST(ComparisonTest, MemberOfAnotherMetricIsAnother) {
  EXPECT_EQ(Compare({Metric(1, 1)}, {Metric(2, 1)}, {}).size(), 2U);
}

}  // namespace
}  // namespace vmetrics
