#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "stats/LogStatistics.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;

/// The line of a step record, its "args" behind the name of the step.
std::string Step(const std::string& name, const std::string& rest) {
  return R"({"timestamp":1700000000000,"spanId":"1","args":{"stepName":")" + name + '"' + rest +
         "}}";
}

std::string Metric(const std::string& id, const std::string& args) {
  return R"({"eventId":")" + id + R"(","timestamp":1700000000000,"args":)" + args + "}";
}

class LogStatisticsTest : public testing::Test {
 protected:
  void Add(const std::string& line) {
    const LogEntry* entry = parser_.Parse(line);
    ASSERT_NE(entry, nullptr) << line;
    statistics_.Add(*entry);
  }

  /// The only series that there is.
  const Series& Only() {
    const auto sorted = statistics_.Sorted();
    EXPECT_EQ(sorted.size(), 1U);
    return sorted.at(0)->second;
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const LogStatistics::Named* named : statistics_.Sorted()) {
      const SeriesKey& key = named->first;
      names.push_back(key.name + (key.IsStep() ? "" : " " + std::to_string(*key.id)));
    }
    return names;
  }

  LogEntryParser parser_;
  Privacy privacy_;
  LogStatistics statistics_{SeriesChoice{}, privacy_};
};

TEST_F(LogStatisticsTest, CountsStepsByName) {
  Add(Step("b", R"(,"errorCode":0,"isSuccess":1,"usedTime":7)"));
  Add(Step("a", R"(,"errorCode":0,"isSuccess":1,"usedTime":7)"));
  Add(Step("b", R"(,"errorCode":0,"isSuccess":1,"usedTime":9)"));
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
  EXPECT_EQ(statistics_.Sorted()[1]->second.count, 2U);
  EXPECT_THAT(statistics_.Sorted()[1]->second.values.Percentiles({50, 95}), ElementsAre(7, 9));
}

TEST_F(LogStatisticsTest, StepFailsByItsErrorCodeOrItsSuccess) {
  Add(Step("a", R"(,"errorCode":-5,"isSuccess":0,"usedTime":1)"));
  Add(Step("a", R"(,"errorCode":-5,"usedTime":1)"));
  Add(Step("a", R"(,"isSuccess":0,"usedTime":1)"));
  Add(Step("a", R"(,"usedTime":1)"));
  EXPECT_EQ(Only().failures, 3U);
  ASSERT_EQ(Only().errorCodes.MostFrequent(3).size(), 1U);
  EXPECT_EQ(Only().errorCodes.MostFrequent(3)[0].code, -5);
  EXPECT_EQ(Only().errorCodes.MostFrequent(3)[0].count, 2U);
}

TEST_F(LogStatisticsTest, StepWithoutAUsableDurationIsCounted) {
  for (const std::string duration :
       {"", R"(,"usedTime":"7")", R"(,"usedTime":-1)", R"(,"usedTime":1.5)",
        R"(,"usedTime":18446744073709551615)", R"(,"usedTime":99999999999999999999)"}) {
    Add(Step("a", duration));
  }
  EXPECT_EQ(Only().count, 6U);
  EXPECT_EQ(Only().unusable, 6U);
  EXPECT_EQ(Only().values.Count(), 0U);
}

TEST_F(LogStatisticsTest, CountsEachNumberOfAMetric) {
  Add(Metric("302645257", R"({"average":8200,"peak":12400,"name":"x","on":true,"none":null})"));
  Add(Metric("-5", R"({"average":-1.5})"));
  EXPECT_THAT(Names(), ElementsAre("average -5", "average 302645257", "peak 302645257"));
  EXPECT_THAT(statistics_.Sorted()[0]->second.values.Percentiles({50}), ElementsAre(-1.5));
}

TEST_F(LogStatisticsTest, NumberBeyondAllRangeIsUnusable) {
  Add(Metric("1", R"({"a":1e400})"));
  EXPECT_EQ(Only().count, 1U);
  EXPECT_EQ(Only().unusable, 1U);
}

TEST_F(LogStatisticsTest, OnlyIdsOfThirtyTwoBitsAreMetrics) {
  for (const std::string id : {"", "VEVENT", "1x", " 1", "2147483648", "0x12"}) {
    Add(Metric(id, R"({"a":1})"));
  }
  Add(R"({"eventId":7,"args":{"a":1}})");
  Add(Metric("1", "[1]"));
  EXPECT_TRUE(statistics_.Sorted().empty());
}

TEST_F(LogStatisticsTest, StepWithANumericEventIdIsAStep) {
  Add(R"({"eventId":"1","spanId":"1","args":{"stepName":"a","usedTime":1}})");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(LogStatisticsTest, SeriesBeyondTheLimitAreLeftOut) {
  for (std::size_t name = 0; name <= LogStatistics::kMostSeries; ++name) {
    Add(Step(std::to_string(name), R"(,"usedTime":1)"));
  }
  Add(Step("0", R"(,"usedTime":1)"));
  EXPECT_EQ(statistics_.Sorted().size(), LogStatistics::kMostSeries);
  EXPECT_EQ(statistics_.LeftOut(), 1U);
  EXPECT_EQ(statistics_.Sorted()[0]->second.count, 2U);
}

TEST_F(LogStatisticsTest, NamesBeyondTheirRoomAreLeftOut) {
  const std::string name(std::size_t{6} << 20U, 'x');
  for (const char* number : {"1", "2", "3"}) {
    Add(Step(name + number, R"(,"usedTime":1)"));
  }
  EXPECT_EQ(statistics_.Sorted().size(), 2U);
  EXPECT_EQ(statistics_.LeftOut(), 1U);
}

TEST_F(LogStatisticsTest, MembersOfPrivateMetricsAreNamelessUnlessTheCatalogueNamesThem) {
  constexpr const char* kId = "789250054";  // topNcpu
  Add(Metric(kId, R"({"alice.exe":1,"topNcpu":2,"bob.exe":3})"));
  EXPECT_THAT(Names(), ElementsAre("*** 789250054", "topNcpu 789250054"));
  EXPECT_EQ(statistics_.Sorted()[0]->second.count, 2U);
}

std::vector<std::int64_t> PeriodsOf(Period period, const std::vector<std::string>& timestamps) {
  const Privacy privacy;
  LogStatistics statistics({period, {}, {}}, privacy);
  LogEntryParser parser;
  for (const std::string& timestamp : timestamps) {
    statistics.Add(
        *parser.Parse(R"({"eventId":"1","timestamp":)" + timestamp + R"(,"args":{"a":1}})"));
  }
  std::vector<std::int64_t> periods;
  for (const LogStatistics::Named* named : statistics.Sorted()) {
    periods.push_back(named->first.period);
  }
  return periods;
}

TEST(LogStatisticsPeriodTest, HoursAndDays) {
  EXPECT_THAT(PeriodsOf(Period::kHour, {"3600000", "3599999", "0"}), ElementsAre(0, 1));
  EXPECT_THAT(PeriodsOf(Period::kDay, {"86400000", "86399999"}), ElementsAre(0, 1));
}

TEST(LogStatisticsPeriodTest, TimesBeyondTheCalendarAreTimeless) {
  EXPECT_THAT(PeriodsOf(Period::kDay,
                        {"-1", "253402300800000", "1e3", "\"0\"", "null", "99999999999999999999"}),
              ElementsAre(SeriesKey::kTimeless));
  EXPECT_THAT(PeriodsOf(Period::kDay, {"253402300799999"}), ElementsAre(2932896));
}

TEST(ErrorCodesTest, MostFrequentFirstThenTheLeast) {
  ErrorCodes codes;
  for (const int code : {7, 7, -5, 3, 3, 9, 9, 9}) {
    codes.Add(code);
  }
  codes.Add(std::nullopt);
  const auto most = codes.MostFrequent(3);
  ASSERT_EQ(most.size(), 3U);
  EXPECT_EQ(most[0].code, 9);
  EXPECT_EQ(most[1].code, 3);
  EXPECT_EQ(most[2].code, 7);
  EXPECT_EQ(most[2].count, 2U);
}

TEST(ErrorCodesTest, CodesBeyondTheThousandthAreNotKept) {
  ErrorCodes codes;
  for (int code = 0; code <= 1000; ++code) {
    codes.Add(code);
  }
  codes.Add(999);
  EXPECT_EQ(codes.MostFrequent(2000).size(), 1000U);
  EXPECT_EQ(codes.MostFrequent(1)[0].code, 999);
}

}  // namespace
}  // namespace vmetrics
