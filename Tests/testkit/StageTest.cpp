#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "TemporaryDirectory.h"
#include "TestKitTest.h"
#include "VDateTime.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kIdentifier[] = "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4";

class StageTest : public TestKitTest {};

TEST_F(StageTest, TheLibraryAsItIsShippedIsBelow) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const TemporaryDirectory directory;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(directory.Path());
  Trace("place");
  VMetrics::InsertRecord(7, "t", "e", "s", "", 0);
  std::filesystem::current_path(before);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(std::filesystem::is_empty(directory.Path()));
  EXPECT_EQ(TestKit::MetricsLines().size(), 1U);
  EXPECT_EQ(TestKit::LogLines().size(), 1U);
}

TEST_F(StageTest, ResetForgetsWhatWasRecorded) {
  Trace("place");
  VMetrics::InsertRecord(7, "t", "e", "s", "", 0);
  TestKit::Reset();
  EXPECT_THAT(TestKit::MetricsLines(), IsEmpty());
  EXPECT_THAT(TestKit::LogLines(), IsEmpty());
  EXPECT_EQ(TestKit::SpanFile(), "");
}

TEST_F(StageTest, ResetEndsWhatWasToFail) {
  TestKit::RefuseAllLocks();
  TestKit::LimitWrites(-1);
  TestKit::ScriptTicks({5});
  TestKit::Reset();
  Trace("place");
  const TestKit::Step step = TestKit::FindStep("ORDER", "place");
  EXPECT_EQ(TestKit::SpanFile(), step.spanId);
  EXPECT_EQ(step.startTime, TestKit::kFirstTick);
}

TEST_F(StageTest, ResetTakesBackWhatWasRegistered) {
  EXPECT_EQ(Register("order_placed;json;orderPlaced;0"), VMETRICS_OK);
  VMetrics::GetMetricsMap()[1] = {"int", "one", "0"};
  TestKit::Reset();
  EXPECT_EQ(VMetrics::GetMetricsMap().count(1), 0U);
  EXPECT_EQ(Register("order_placed;json;orderPlaced;0"), VMETRICS_OK);
}

TEST_F(StageTest, ClockStandsStill) {
  EXPECT_EQ(VDateTime::GetCurrentTick(), TestKit::kFirstTick);
  EXPECT_EQ(VDateTime::GetCurrentTick(), TestKit::kFirstTick);
}

TEST_F(StageTest, ClockStandsWhereItIsSet) {
  TestKit::SetTick(5);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 5U);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 5U);
}

TEST_F(StageTest, ClockIsAdvanced) {
  TestKit::SetTick(5);
  TestKit::AdvanceTick(250);
  TestKit::AdvanceTick(1);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 256U);
}

TEST_F(StageTest, ClockReadsItsScriptAndThenTheLastTick) {
  TestKit::ScriptTicks({5, 7, 9});
  EXPECT_EQ(VDateTime::GetCurrentTick(), 5U);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 7U);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 9U);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 9U);
}

TEST_F(StageTest, AdvancingCountsFromTheTickThatIsNext) {
  TestKit::ScriptTicks({5, 7, 9});
  EXPECT_EQ(VDateTime::GetCurrentTick(), 5U);
  TestKit::AdvanceTick(100);
  EXPECT_EQ(VDateTime::GetCurrentTick(), 107U);
}

TEST_F(StageTest, EmptyScriptIsTheFirstTick) {
  TestKit::SetTick(5);
  TestKit::ScriptTicks({});
  EXPECT_EQ(VDateTime::GetCurrentTick(), TestKit::kFirstTick);
}

TEST_F(StageTest, StepIsTheChildOfWhatTheSpanFileHolds) {
  TestKit::SetSpanFile(kIdentifier);
  Trace("place");
  EXPECT_EQ(TestKit::FindStep("ORDER", "place").parentSpanId, kIdentifier);
}

TEST_F(StageTest, NamedLocksAreRefused) {
  TestKit::RefuseLocks(2, 2);
  TestKit::SetSpanFile(kIdentifier);
  Trace("place");
  EXPECT_EQ(TestKit::FindStep("ORDER", "place").parentSpanId, kIdentifier);
  EXPECT_EQ(TestKit::SpanFile(), kIdentifier);
}

TEST_F(StageTest, AllLocksAreRefused) {
  TestKit::RefuseAllLocks();
  TestKit::SetSpanFile(kIdentifier);
  Trace("place");
  EXPECT_EQ(TestKit::FindStep("ORDER", "place").parentSpanId, "ParentSpanId");
  EXPECT_EQ(TestKit::SpanFile(), kIdentifier);
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "ParentSpanId");
}

TEST_F(StageTest, WritesComeShort) {
  TestKit::LimitWrites(4);
  Trace("place");
  EXPECT_EQ(TestKit::SpanFile(), TestKit::FindStep("ORDER", "place").spanId.substr(0, 4));
  EXPECT_EQ(TestKit::ExpectLogLine(1, "write failed count = 4, spanId.size = 36"), "");
}

TEST_F(StageTest, WritesFail) {
  TestKit::LimitWrites(-1);
  Trace("place");
  EXPECT_EQ(TestKit::SpanFile(), "");
  EXPECT_EQ(TestKit::ExpectLogLine(1, "write failed count = -1, spanId.size = 36"), "");
}

}  // namespace
