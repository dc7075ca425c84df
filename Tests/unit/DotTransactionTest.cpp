#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <string>

#include "DotRecord/DotTransaction.h"
#include "FailEachAllocation.h"
#include "SpanMatchers.h"
#include "VMetrics.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;
using vmetrics::DotStepRecord;
using vmetrics::DotTransaction;

constexpr char kNoStart[] = "stepName[%s] has not startEvent";
constexpr char kUnknownStatus[] = "status[%d] is not exist";

class DotTransactionTest : public testing::Test {
 protected:
  DotTransactionTest() { FakePlatform::Reset(); }

  static DotStepRecord Event(int status, const std::string& step,
                             const std::string& parent = kSpanA, int errorCode = 0) {
    return {status, 4, errorCode, "order-7", "LOGIN", step, "", parent};
  }

  int Insert(DotStepRecord record) { return transaction.InsertRecord(&record); }

  /// Starts the step at tick 1000 and forgets what was noted of that.
  void StartAt1000(const std::string& step) {
    FakePlatform::ScriptTicks({1000});
    EXPECT_EQ(Insert(Event(0, step)), VMETRICS_OK);
    FakePlatform::ScriptTicks({1250, 1300});
  }

  DotTransaction transaction{"order-7"};
};

/// The line of the step "s" that runs from 1000 to 1250.
std::string Line(const DotStepRecord& record, const std::string& parentMember) {
  return R"({"eventId":"LOGIN","timestamp":1300,"terminalId":"0","type":"2",)"
         R"("transactionId":"order-7","spanId":")" +
         record.spanId + "\"," + parentMember +
         R"("args":{"stepName":"s","errorCode":0,"isSuccess":1,)"
         R"("startTime":1000,"endTime":1250,"usedTime":250}})";
}

TEST_F(DotTransactionTest, NewOneHasItsIdAndNoOpenStep) {
  EXPECT_EQ(transaction.transactionId, "order-7");
  EXPECT_THAT(transaction.stepStarts, IsEmpty());
}

TEST_F(DotTransactionTest, StartNotesTheTick) {
  FakePlatform::ScriptTicks({1000, 2000});
  EXPECT_EQ(Insert(Event(0, "s")), VMETRICS_OK);
  EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("s", 1000)));
}

TEST_F(DotTransactionTest, StartReadsTheClockOnceAndEmitsNothing) {
  EXPECT_EQ(Insert(Event(0, "s", "ParentSpanId")), VMETRICS_OK);
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
  EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_THAT(FakePlatform::FileOperations(), IsEmpty());
}

TEST_F(DotTransactionTest, StartLeavesTheRecordAsItWas) {
  DotStepRecord record = Event(0, "s", "ParentSpanId");
  transaction.InsertRecord(&record);
  EXPECT_EQ(record.spanId, "");
  EXPECT_EQ(record.parentSpanId, "ParentSpanId");
}

TEST_F(DotTransactionTest, SecondStartRestartsTheClock) {
  FakePlatform::ScriptTicks({1000, 1100});
  Insert(Event(0, "s"));
  EXPECT_EQ(Insert(Event(0, "s")), VMETRICS_OK);
  EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("s", 1100)));
}

// Starts do not nest: the one end closes both.
TEST_F(DotTransactionTest, OneEndClosesAStepStartedTwice) {
  Insert(Event(0, "s"));
  StartAt1000("s");
  EXPECT_EQ(Insert(Event(1, "s")), VMETRICS_OK);
  EXPECT_EQ(Insert(Event(1, "s")), VMETRICS_STEP_ERROR);
}

TEST_F(DotTransactionTest, StepsOfDifferentNamesAreOpenSideBySide) {
  FakePlatform::ScriptTicks({1, 2, 3});
  Insert(Event(0, "b"));
  Insert(Event(0, "a"));
  Insert(Event(0, ""));
  EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("", 3), Pair("a", 2), Pair("b", 1)));
}

TEST_F(DotTransactionTest, EndEmitsOneRecordFromStartToEnd) {
  StartAt1000("s");
  DotStepRecord record = Event(1, "s");
  EXPECT_EQ(transaction.InsertRecord(&record), VMETRICS_OK);
  ASSERT_THAT(FakePlatform::MetricsLines(), SizeIs(1));
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text,
            Line(record, R"("parentSpanId":")" + std::string(kSpanA) + "\","));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotTransactionTest, EndReadsTheClockAtItsBeginningAndForTheRecord) {
  StartAt1000("s");
  Insert(Event(1, "s"));
  EXPECT_EQ(FakePlatform::TicksRead(), 2);
}

TEST_F(DotTransactionTest, EndGivesTheStepAnIdentifier) {
  StartAt1000("s");
  DotStepRecord record = Event(1, "s");
  record.spanId = "whatever the caller left here";
  transaction.InsertRecord(&record);
  EXPECT_TRUE(IsSpanIdentifier(record.spanId)) << record.spanId;
}

TEST_F(DotTransactionTest, EndClosesItsStepOnly) {
  FakePlatform::ScriptTicks({1, 2});
  Insert(Event(0, "s"));
  Insert(Event(0, "t"));
  Insert(Event(1, "s"));
  EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("t", 2)));
}

TEST_F(DotTransactionTest, EndedStepCanStartAgain) {
  StartAt1000("s");
  Insert(Event(1, "s"));
  StartAt1000("s");
  EXPECT_EQ(Insert(Event(1, "s")), VMETRICS_OK);
  EXPECT_THAT(FakePlatform::MetricsLines(), SizeIs(2));
}

TEST_F(DotTransactionTest, EndWithoutStartIsRefused) {
  StartAt1000("s");
  DotStepRecord record = Event(1, "S", "ParentSpanId");
  EXPECT_EQ(transaction.InsertRecord(&record), VMETRICS_STEP_ERROR);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError(kNoStart, "stepName[S] has not startEvent")));
  EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("s", 1000)));
  EXPECT_EQ(record.spanId, "");
  EXPECT_EQ(record.parentSpanId, "ParentSpanId");
}

TEST_F(DotTransactionTest, RefusedEndReadsTheClockOnceAndTouchesNothingElse) {
  EXPECT_EQ(Insert(Event(1, "s", "ParentSpanId")), VMETRICS_STEP_ERROR);
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
  EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
  EXPECT_THAT(FakePlatform::FileOperations(), IsEmpty());
}

TEST_F(DotTransactionTest, RefusedEndNamesEvenAnEmptyStep) {
  EXPECT_EQ(Insert(Event(1, "")), VMETRICS_STEP_ERROR);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError(kNoStart, "stepName[] has not startEvent")));
}

TEST_F(DotTransactionTest, UnknownStatusIsRefused) {
  StartAt1000("s");
  for (const int status : {2, -1, 3, INT_MAX, INT_MIN}) {
    const std::size_t logged = FakePlatform::LogLines().size();
    EXPECT_EQ(Insert(Event(status, "s", "ParentSpanId")), VMETRICS_STEP_ERROR);
    ASSERT_THAT(FakePlatform::LogLines(), SizeIs(logged + 1));
    EXPECT_THAT(
        FakePlatform::LogLines().back(),
        IsInsertError(kUnknownStatus, "status[" + std::to_string(status) + "] is not exist"));
  }
  EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("s", 1000)));
  EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
  EXPECT_THAT(FakePlatform::FileOperations(), IsEmpty());
}

TEST_F(DotTransactionTest, UnknownStatusReadsTheClockOnce) {
  Insert(Event(2, "s"));
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
}

TEST_F(DotTransactionTest, GivenParentIsKeptAndTheFileOnlyWritten) {
  FakePlatform::Files()["spanId"] = kSpanB;
  StartAt1000("s");
  DotStepRecord record = Event(1, "s", kSpanA);
  transaction.InsertRecord(&record);
  EXPECT_EQ(record.parentSpanId, kSpanA);
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId", "write 36 spanId", "unlock spanId"));
  EXPECT_EQ(FakePlatform::Files()["spanId"], record.spanId);
}

// Two sessions, not one: other processes may come between the read and the write.
TEST_F(DotTransactionTest, ParentIsTakenFromTheFileBeforeTheOwnIdentifierIsWritten) {
  FakePlatform::Files()["spanId"] = kSpanA;
  StartAt1000("s");
  DotStepRecord record = Event(1, "s", "ParentSpanId");
  transaction.InsertRecord(&record);
  EXPECT_EQ(record.parentSpanId, kSpanA);
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId", "read 128 spanId", "unlock spanId",
                          "lock exclusive spanId", "write 36 spanId", "unlock spanId"));
  EXPECT_EQ(FakePlatform::Files()["spanId"], record.spanId);
}

TEST_F(DotTransactionTest, OnlyTheExactPlaceholderIsLookedUp) {
  for (const std::string parent :
       {"parentSpanId", "ParentSpanID", "ParentSpanId ", " ParentSpanId", "ParentSpan", "x", ""}) {
    FakePlatform::Reset();
    FakePlatform::Files()["spanId"] = kSpanA;
    StartAt1000("s");
    DotStepRecord record = Event(1, "s", parent);
    transaction.InsertRecord(&record);
    EXPECT_EQ(record.parentSpanId, parent);
    EXPECT_THAT(FakePlatform::FileOperations(),
                ElementsAre("lock exclusive spanId", "write 36 spanId", "unlock spanId"));
  }
}

TEST_F(DotTransactionTest, EmptyParentIsLeftOutOfTheRecord) {
  StartAt1000("s");
  DotStepRecord record = Event(1, "s", "");
  transaction.InsertRecord(&record);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text, Line(record, ""));
}

TEST_F(DotTransactionTest, EmptyFileLeavesTheParentOutOfTheRecord) {
  StartAt1000("s");
  DotStepRecord record = Event(1, "s", "ParentSpanId");
  transaction.InsertRecord(&record);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text, Line(record, ""));
}

TEST_F(DotTransactionTest, StepsFollowEachOtherThroughTheFile) {
  StartAt1000("s");
  DotStepRecord first = Event(1, "s", "ParentSpanId");
  transaction.InsertRecord(&first);
  StartAt1000("t");
  DotStepRecord second = Event(1, "t", "ParentSpanId");
  transaction.InsertRecord(&second);
  EXPECT_EQ(second.parentSpanId, first.spanId);
}

TEST_F(DotTransactionTest, RefusedReadLockKeepsThePlaceholderAndStillWrites) {
  FakePlatform::Files()["spanId"] = kSpanA;
  StartAt1000("s");
  FakePlatform::RefuseLocks(1, 1);
  DotStepRecord record = Event(1, "s", "ParentSpanId");
  EXPECT_EQ(transaction.InsertRecord(&record), VMETRICS_OK);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text,
            Line(record, R"("parentSpanId":"ParentSpanId",)"));
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId",  //
                          "lock exclusive spanId", "write 36 spanId", "unlock spanId"));
  EXPECT_EQ(FakePlatform::Files()["spanId"], record.spanId);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotTransactionTest, RefusedWriteLockLeavesTheFileAndStillEmits) {
  FakePlatform::Files()["spanId"] = kSpanA;
  StartAt1000("s");
  FakePlatform::RefuseLocks(2, 2);
  DotStepRecord record = Event(1, "s", "ParentSpanId");
  EXPECT_EQ(transaction.InsertRecord(&record), VMETRICS_OK);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text,
            Line(record, R"("parentSpanId":")" + std::string(kSpanA) + "\","));
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId", "read 128 spanId", "unlock spanId",
                          "lock exclusive spanId"));
  EXPECT_EQ(FakePlatform::Files()["spanId"], kSpanA);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_THAT(transaction.stepStarts, IsEmpty());
}

TEST_F(DotTransactionTest, RefusedLocksStillEmit) {
  StartAt1000("s");
  FakePlatform::RefuseAllLocks();
  DotStepRecord record = Event(1, "s", "ParentSpanId");
  EXPECT_EQ(transaction.InsertRecord(&record), VMETRICS_OK);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text,
            Line(record, R"("parentSpanId":"ParentSpanId",)"));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotTransactionTest, ShortWriteIsLoggedAndTheRecordEmitted) {
  StartAt1000("s");
  FakePlatform::LimitWrites(35);
  EXPECT_EQ(Insert(Event(1, "s")), VMETRICS_OK);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError("write failed count = %d, spanId.size = %d",
                                        "write failed count = 35, spanId.size = 36")));
  EXPECT_THAT(FakePlatform::MetricsLines(), SizeIs(1));
  EXPECT_THAT(transaction.stepStarts, IsEmpty());
}

TEST_F(DotTransactionTest, RefusedClearingLeavesTheParentOut) {
  FakePlatform::Files()["spanId"] = kSpanA;
  StartAt1000("s");
  FakePlatform::FailClear(1);
  DotStepRecord record = Event(1, "s", "ParentSpanId");
  EXPECT_EQ(transaction.InsertRecord(&record), VMETRICS_OK);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text, Line(record, ""));
  EXPECT_EQ(FakePlatform::Files()["spanId"], record.spanId);
}

TEST_F(DotTransactionTest, ErrorCodeOfTheEndCounts) {
  Insert(Event(0, "s", kSpanA, 3));
  Insert(Event(1, "s", kSpanA, -5));
  const std::string& text = FakePlatform::MetricsLines()[0].text;
  EXPECT_NE(text.find(R"("errorCode":-5,"isSuccess":0,)"), std::string::npos) << text;
}

TEST_F(DotTransactionTest, UsedTimeWrapsWhenTheClockWentBack) {
  FakePlatform::ScriptTicks({1000, 999, 1300});
  Insert(Event(0, "s"));
  Insert(Event(1, "s"));
  const std::string& text = FakePlatform::MetricsLines()[0].text;
  EXPECT_NE(text.find(R"("startTime":1000,"endTime":999,"usedTime":18446744073709551615}})"),
            std::string::npos)
      << text;
}

// A start whose memory runs out has not happened.
TEST_F(DotTransactionTest, StartWithoutMemoryOpensNoStep) {
  DotStepRecord record = Event(0, "a step name that is too long to be stored in place");
  const int failed = FailEachAllocation(
      AllocationFailure::Extent::kOnce, [] {},
      [&] { return std::to_string(transaction.InsertRecord(&record)); },
      [&](const std::optional<std::string>& result, long) {
        EXPECT_EQ(transaction.stepStarts.size(), result == "0" ? 1U : 0U);
      });
  EXPECT_EQ(failed, 2);  // The entry of the map and its key.
}

// An end whose memory runs out leaves its step open. The file has the step's identifier from the
// moment it is written there; the identifier that stood there stays until then.
TEST_F(DotTransactionTest, EndWithoutMemoryLeavesTheStepOpenAndTheFileWhole) {
  int beforeWrite = 0;
  int afterWrite = 0;
  DotStepRecord record;
  const auto prepare = [&] {
    FakePlatform::Reset();
    StartAt1000("s");
    FakePlatform::Files()["spanId"] = kSpanA;
    RoomForFileOperations();
    record = Event(1, "s", "ParentSpanId");
  };
  const auto check = [&](const std::optional<std::string>& result, long) {
    EXPECT_FALSE(HasOpenSession());
    if (result) {
      EXPECT_EQ(result, "0");
      return;
    }
    EXPECT_THAT(transaction.stepStarts, ElementsAre(Pair("s", 1000)));
    EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
    const bool written = FakePlatform::Files()["spanId"] != kSpanA;
    EXPECT_EQ(FakePlatform::Files()["spanId"], written ? record.spanId : kSpanA);
    ++(written ? afterWrite : beforeWrite);
  };
  FailEachAllocation(
      AllocationFailure::Extent::kOnce, prepare,
      [&] { return std::to_string(transaction.InsertRecord(&record)); }, check);
  EXPECT_GT(beforeWrite, 0);
  EXPECT_GT(afterWrite, 0);
  EXPECT_THAT(transaction.stepStarts, IsEmpty());
}

}  // namespace
