// How the steps of a transaction lie in time.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "trace/StepStore.h"
#include "trace/Timeline.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;

constexpr std::int64_t kNow = 1795277057733;

class TimelineTest : public testing::Test {
 protected:
  /// A step of the one transaction, its times since kNow.
  void Add(std::string_view name, std::int64_t start, std::int64_t end, int errorCode = 0) {
    AddRecord(name, kNow + start, kNow + end, errorCode, std::to_string(++spans_));
  }

  void AddRecord(std::string_view name, std::int64_t start, std::int64_t end, int errorCode,
                 std::string_view span) {
    StepRecord record;
    record.transactionId = "t";
    record.spanId = span;
    record.name = name;
    record.start = start;
    record.end = end;
    record.errorCode = errorCode;
    record.hasErrorCode = true;
    record.isFailed = errorCode != 0;
    store_.Add(record);
  }

  Timeline Make() const { return TimelineOf(store_.StepsOf(store_.Transactions().front())); }

  /// Each step as "name", indented by its depth, with "*" on the slowest path and the gap before
  /// it.
  std::vector<std::string> Show(const Timeline& timeline) const {
    std::vector<std::string> lines;
    for (const TimelineStep& timed : timeline.steps) {
      std::string line(timed.depth, ' ');
      line += store_.DescriptionOf(*timed.step).name;
      line += timed.isOnSlowestPath ? "*" : "";
      line += timed.gapBefore > 0 ? " after " + std::to_string(timed.gapBefore) : "";
      lines.push_back(line);
    }
    return lines;
  }
  std::vector<std::string> Show() const { return Show(Make()); }

  StepStore store_;
  int spans_ = 0;
};

TEST_F(TimelineTest, StepsStandByTheirStartsNotInTheOrderOfTheLogs) {
  Add("c", 20, 30);
  Add("a", 0, 10);
  Add("b", 10, 20);
  EXPECT_THAT(Show(), ElementsAre("a*", "b*", "c*"));
}

TEST_F(TimelineTest, StepsOfOneInstantStandInTheOrderOfTheLogs) {
  Add("b", 0, 0);
  Add("a", 0, 0);
  Add("c", 0, 0);
  EXPECT_THAT(Show(), ElementsAre("b*", "a*", "c*"));
}

TEST_F(TimelineTest, AStepLiesWithinTheInnermostOneAroundIt) {
  Add("deep", 30, 40);
  Add("inner", 20, 50);
  Add("outer", 0, 100);
  Add("next", 60, 90);
  EXPECT_THAT(Show(), ElementsAre("outer*", " inner*", "  deep*", " next*"));
}

TEST_F(TimelineTest, AStepThatOnlyOverlapsAnotherDoesNotLieWithinIt) {
  Add("a", 0, 10);
  Add("b", 5, 15);
  Add("within b", 6, 9);
  EXPECT_THAT(Show(), ElementsAre("a", "b*", " within b*"));
}

TEST_F(TimelineTest, EqualAndTouchingStepsDoNotLieWithinEachOther) {
  Add("a", 0, 10);
  Add("equal", 0, 10);
  Add("at the end", 10, 10);
  Add("at the start", 0, 0);
  EXPECT_THAT(Show(), ElementsAre("at the start*", "a", "equal*", "at the end*"));
}

TEST_F(TimelineTest, TheSlowestPathGoesBackFromTheEndThroughWhatEndedLast) {
  Add("fast", 0, 10);
  Add("slow", 5, 50);
  Add("waits for slow", 50, 80);
  Add("ends early", 55, 60);
  Add("ends last", 80, 100);
  Add("runs beside", 60, 90);
  EXPECT_THAT(Show(), ElementsAre("fast", "slow*", "waits for slow*", " ends early*", "runs beside",
                                  "ends last*"));
}

TEST_F(TimelineTest, WhatLiesWithinAStepBesideTheSlowestPathIsNotOnIt) {
  Add("beside", 0, 90);
  Add("within", 10, 20);
  Add("last", 0, 100);
  Add("overlaps", 80, 110);
  EXPECT_THAT(Show(), ElementsAre("last", " beside", "  within", "overlaps*"));
}

TEST_F(TimelineTest, AGapIsTimeInWhichNoStepRan) {
  Add("a", 0, 50);
  Add("within a", 10, 20);
  Add("b", 60, 100);
  EXPECT_THAT(Show(), ElementsAre("a*", " within a*", "b* after 10"));
}

TEST_F(TimelineTest, AGapIsToldFromATwentiethOn) {
  Add("a", 0, 50);
  Add("b", 54, 95);
  Add("c", 100, 100);
  EXPECT_THAT(Show(), ElementsAre("a*", "b*", "c* after 5"));
}

TEST_F(TimelineTest, TheLongestOnThePathIsAStepWithoutThoseWithinOrAGap) {
  Add("outer", 0, 100);
  Add("first", 0, 60);
  Add("second", 60, 90);
  EXPECT_EQ(Make().longest.time, 60);
  EXPECT_EQ(store_.DescriptionOf(*Make().longest.step).name, "first");
  Add("late", 170, 180);
  EXPECT_EQ(Make().longest.time, 70);
  EXPECT_TRUE(Make().longest.isGap);
  EXPECT_EQ(store_.DescriptionOf(*Make().longest.step).name, "late");
}

TEST_F(TimelineTest, NothingIsLongestWhereNothingTookAnyTime) {
  Add("a", 5, 5);
  EXPECT_EQ(Make().longest.step, nullptr);
  EXPECT_EQ(Make().Duration(), 0);
}

TEST_F(TimelineTest, StepsWithOddTimesDoNotCountForTheScale) {
  Add("a", 100, 200);
  Add("set back", 300, 50);
  AddRecord("since 1970", 0, kNow + 1000, 0, "x");
  AddRecord("until 9999", kNow, 253402300799999, 0, "y");
  AddRecord("no date", kNow, 253402300800000, 0, "z");
  AddRecord("before 1970", -1, kNow, 0, "u");
  AddRecord("none", kNoTick, kNoTick, 0, "v");
  const Timeline timeline = Make();
  EXPECT_EQ(timeline.start, kNow + 100);
  EXPECT_EQ(timeline.end, kNow + 200);
  EXPECT_EQ(timeline.Count(Placement::kInScale), 1U);
  EXPECT_EQ(timeline.Count(Placement::kEndsBeforeStart), 1U);
  EXPECT_EQ(timeline.Count(Placement::kFarAway), 2U);
  EXPECT_EQ(timeline.Count(Placement::kNoDate), 3U);
  EXPECT_THAT(Show(timeline), ElementsAre("since 1970", "until 9999", "a*", "set back", "none",
                                          "before 1970", "no date"));
}

constexpr std::int64_t kDay = std::int64_t{24} * 3600 * 1000;

TEST_F(TimelineTest, ASingleStepIsInScaleHoweverLongItTook) {
  Add("a", 0, 40 * kDay);
  EXPECT_EQ(Make().Count(Placement::kInScale), 1U);
  EXPECT_EQ(Make().Duration(), 40 * kDay);
}

TEST_F(TimelineTest, OfTwoStepsTheLongerThan31DaysIsFarAway) {
  Add("a", 0, 10);
  Add("b", 0, 40 * kDay);
  EXPECT_EQ(Make().Count(Placement::kFarAway), 1U);
  EXPECT_EQ(Make().Duration(), 10);
}

TEST_F(TimelineTest, StepsThatFollowEachOtherAreInScaleHoweverLongItTakes) {
  Add("a", 0, 10);
  Add("b", 30 * kDay, 30 * kDay);
  Add("c", 61 * kDay, 61 * kDay);
  EXPECT_EQ(Make().Count(Placement::kInScale), 3U);
  EXPECT_EQ(Make().Duration(), 61 * kDay);
}

TEST_F(TimelineTest, AStepIsFarAwayFrom31DaysOn) {
  Add("a", 0, 0);
  Add("b", 1, 31 * kDay);
  EXPECT_EQ(Make().Count(Placement::kFarAway), 0U);
  Add("c", 62 * kDay + 1, 62 * kDay + 2);
  EXPECT_EQ(Make().Count(Placement::kFarAway), 1U);
}

TEST_F(TimelineTest, TheScaleIsWhereMostStepsLie) {
  AddRecord("1970", 0, 5, 0, "x");
  AddRecord("1970, too", 5, 7, 0, "y");
  Add("now", 0, 10);
  EXPECT_EQ(Make().Duration(), 7);
  Add("now, too", 10, 30);
  EXPECT_EQ(Make().Duration(), 30);
}

TEST_F(TimelineTest, WithoutAnyUsableTimeThereIsNoScale) {
  AddRecord("none", kNoTick, kNoTick, 0, "v");
  EXPECT_FALSE(Make().HasScale());
  EXPECT_EQ(Make().Duration(), 0);
}

TEST_F(TimelineTest, AStepOfUnknownLengthLeavesNoGapBehindIt) {
  Add("a", 0, 10);
  Add("set back", 20, 15);
  Add("b", 90, 100);
  EXPECT_THAT(Show(), ElementsAre("a*", "set back", "b*"));
}

TEST_F(TimelineTest, ARecordThatTheLogsHoldTwiceIsThereOnce) {
  AddRecord("a", kNow, kNow + 10, -5, "s");
  AddRecord("b", kNow, kNow + 10, 0, "t");
  AddRecord("a", kNow, kNow + 10, -5, "s");
  AddRecord("a", kNow, kNow + 10, -5, "s");
  const Timeline timeline = Make();
  EXPECT_EQ(timeline.copies, 2U);
  EXPECT_EQ(timeline.failures, 1U);
  EXPECT_EQ(timeline.sharedSpans, 0U);
  EXPECT_THAT(Show(timeline), ElementsAre("a", "b*"));
}

TEST_F(TimelineTest, DifferentStepsOfOneSpanIdentifierAreAllThere) {
  AddRecord("a", kNow, kNow + 10, 0, "s");
  AddRecord("a", kNow, kNow + 10, -5, "s");
  AddRecord("a", kNow, kNow + 11, 0, "s");
  const Timeline timeline = Make();
  EXPECT_EQ(timeline.copies, 0U);
  EXPECT_EQ(timeline.sharedSpans, 2U);
  EXPECT_EQ(timeline.steps.size(), 3U);
}

}  // namespace
}  // namespace vmetrics
