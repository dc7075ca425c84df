// The table of transactions behind VMetrics::InsertRecord lives as long as the process. Each test
// begins with a table of one, whatever tests ran before, and names transactions of its own.

#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <set>
#include <string>

#include "FailEachAllocation.h"
#include "SpanMatchers.h"
#include "VMetrics.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr char kParent[] = "ParentSpanId";

class InsertRecordTest : public testing::Test {
 protected:
  InsertRecordTest() {
    FakePlatform::Reset();
    MakeTableOfOne();
  }

  /// The test's own transaction.
  static std::string Id() { return testing::UnitTest::GetInstance()->current_test_info()->name(); }

  static int Start(const std::string& id, const char* step = "s") {
    return VMetrics::InsertRecord(0, id.c_str(), "LOGIN", step, kSpanA, 0);
  }
  static int End(const std::string& id, const char* step = "s", const char* parent = kSpanA,
                 int errorCode = 0) {
    return VMetrics::InsertRecord(1, id.c_str(), "LOGIN", step, parent, errorCode);
  }

  /// Starts transactions "fill 0", "fill 1" ... until the table has made room for one: it is alone
  /// in there then.
  static void MakeTableOfOne() {
    for (int i = 0; FakePlatform::LogLines().empty(); ++i) {
      ASSERT_LE(i, 100);
      ASSERT_EQ(Start("fill " + std::to_string(i)), VMETRICS_OK);
    }
    FakePlatform::Reset();
  }

  static void ExpectNothingTouched() {
    EXPECT_EQ(FakePlatform::TicksRead(), 0);
    EXPECT_THAT(FakePlatform::FileOperations(), IsEmpty());
    EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
  }

  static const std::string& OnlyLine() {
    EXPECT_THAT(FakePlatform::MetricsLines(), SizeIs(1));
    static const std::string none;
    return FakePlatform::MetricsLines().empty() ? none : FakePlatform::MetricsLines()[0].text;
  }
};

TEST_F(InsertRecordTest, NullTransactionIdIsRefused) {
  EXPECT_EQ(VMetrics::InsertRecord(0, nullptr, "e", "s", "p", 0), -9999);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsInsertError("transactionId is nullptr")));
  ExpectNothingTouched();
}

TEST_F(InsertRecordTest, NullEventIdIsRefused) {
  EXPECT_EQ(VMetrics::InsertRecord(0, "t", nullptr, "s", "p", 0), -9999);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsInsertError("eventId is nullptr")));
  ExpectNothingTouched();
}

TEST_F(InsertRecordTest, NullStepNameIsRefused) {
  EXPECT_EQ(VMetrics::InsertRecord(0, "t", "e", nullptr, "p", 0), -9999);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsInsertError("stepName is nullptr")));
  ExpectNothingTouched();
}

TEST_F(InsertRecordTest, NullSpanParentIdIsRefused) {
  EXPECT_EQ(VMetrics::InsertRecord(0, "t", "e", "s", nullptr, 0), -9999);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsInsertError("spanParentId is nullptr")));
  ExpectNothingTouched();
}

TEST_F(InsertRecordTest, FirstNullIsTheOneReported) {
  VMetrics::InsertRecord(0, nullptr, nullptr, nullptr, nullptr, 0);
  VMetrics::InsertRecord(0, "t", nullptr, nullptr, nullptr, 0);
  VMetrics::InsertRecord(0, "t", "e", nullptr, nullptr, 0);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsInsertError("transactionId is nullptr"),
                                                    IsInsertError("eventId is nullptr"),
                                                    IsInsertError("stepName is nullptr")));
}

TEST_F(InsertRecordTest, NullsAreRefusedWhateverTheStatus) {
  for (const int status : {0, 1, 2, -1}) {
    EXPECT_EQ(VMetrics::InsertRecord(status, "t", "e", "s", nullptr, 0), -9999);
  }
  EXPECT_THAT(FakePlatform::LogLines(), SizeIs(4));
}

TEST_F(InsertRecordTest, EmptyTransactionIdHasNoObject) {
  EXPECT_EQ(Start(""), -9999);
  EXPECT_EQ(End(""), -9999);
  EXPECT_EQ(VMetrics::InsertRecord(2, "", "e", "s", "p", 0), -9999);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError("object is nullptr"), IsInsertError("object is nullptr"),
                          IsInsertError("object is nullptr")));
  ExpectNothingTouched();
}

TEST_F(InsertRecordTest, EachFailingSiteHasALineOfItsOwn) {
  VMetrics::InsertRecord(0, nullptr, "e", "s", "p", 0);
  VMetrics::InsertRecord(0, "t", nullptr, "s", "p", 0);
  VMetrics::InsertRecord(0, "t", "e", nullptr, "p", 0);
  VMetrics::InsertRecord(0, "t", "e", "s", nullptr, 0);
  Start("");
  std::set<int> lines;
  for (const FakePlatform::LogLine& logged : FakePlatform::LogLines()) {
    lines.insert(logged.line);
  }
  EXPECT_THAT(lines, SizeIs(5));
}

TEST_F(InsertRecordTest, StepFromStartToEndIsOneLine) {
  FakePlatform::Files()["spanId"] = kSpanB;
  FakePlatform::ScriptTicks({1000, 1250, 1300});
  EXPECT_EQ(Start(Id()), 0);
  EXPECT_EQ(End(Id(), "s", kParent), 0);
  EXPECT_EQ(OnlyLine(), R"({"eventId":"LOGIN","timestamp":1300,"terminalId":"0","type":"2",)"
                        R"("transactionId":"StepFromStartToEndIsOneLine","spanId":")" +
                            FakePlatform::Files()["spanId"] +
                            R"(","parentSpanId":"d091bb5c-22ae-e7e1-d5c3-1f792082352c",)"
                            R"("args":{"stepName":"s","errorCode":0,"isSuccess":1,)"
                            R"("startTime":1000,"endTime":1250,"usedTime":250}})");
  EXPECT_TRUE(IsSpanIdentifier(FakePlatform::Files()["spanId"]));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(InsertRecordTest, StartReadsOneTickAndEndTwo) {
  Start(Id());
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
  End(Id());
  EXPECT_EQ(FakePlatform::TicksRead(), 3);
}

TEST_F(InsertRecordTest, SecondEndHasNoStart) {
  Start(Id());
  End(Id());
  EXPECT_EQ(End(Id()), -9996);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError("stepName[%s] has not startEvent",
                                        "stepName[s] has not startEvent")));
  EXPECT_THAT(FakePlatform::MetricsLines(), SizeIs(1));
}

TEST_F(InsertRecordTest, UnknownStatusIsRefusedAndTheOpenStepStays) {
  Start(Id());
  EXPECT_EQ(VMetrics::InsertRecord(2, Id().c_str(), "e", "s", kParent, 0), -9996);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError("status[%d] is not exist", "status[2] is not exist")));
  EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
  EXPECT_EQ(End(Id()), 0);
}

TEST_F(InsertRecordTest, EmptyStepEventAndParentAreAccepted) {
  FakePlatform::ScriptTicks({1000, 1250, 1300});
  EXPECT_EQ(VMetrics::InsertRecord(0, Id().c_str(), "", "", "", 0), 0);
  EXPECT_EQ(VMetrics::InsertRecord(1, Id().c_str(), "", "", "", 0), 0);
  EXPECT_EQ(OnlyLine(), R"({"timestamp":1300,"terminalId":"0","type":"2",)"
                        R"("transactionId":"EmptyStepEventAndParentAreAccepted","spanId":")" +
                            FakePlatform::Files()["spanId"] +
                            R"(","args":{"stepName":"","errorCode":0,"isSuccess":1,)"
                            R"("startTime":1000,"endTime":1250,"usedTime":250}})");
}

TEST_F(InsertRecordTest, EventErrorAndParentOfTheEndCount) {
  FakePlatform::ScriptTicks({1000, 1250, 1300});
  VMetrics::InsertRecord(0, Id().c_str(), "EARLY", "s", kSpanB, 1);
  VMetrics::InsertRecord(1, Id().c_str(), "LATE", "s", "mother", -5);
  EXPECT_EQ(OnlyLine(), R"({"eventId":"LATE","timestamp":1300,"terminalId":"0","type":"2",)"
                        R"("transactionId":"EventErrorAndParentOfTheEndCount","spanId":")" +
                            FakePlatform::Files()["spanId"] +
                            R"(","parentSpanId":"mother",)"
                            R"("args":{"stepName":"s","errorCode":-5,"isSuccess":0,)"
                            R"("startTime":1000,"endTime":1250,"usedTime":250}})");
}

TEST_F(InsertRecordTest, SameStepOfTwoTransactionsIsTrackedApart) {
  FakePlatform::ScriptTicks({1000, 2000, 3000, 3001, 4000, 4001});
  Start(Id());
  Start(Id() + "2");
  End(Id());
  End(Id() + "2");
  ASSERT_THAT(FakePlatform::MetricsLines(), SizeIs(2));
  const std::string& first = FakePlatform::MetricsLines()[0].text;
  const std::string& second = FakePlatform::MetricsLines()[1].text;
  EXPECT_NE(first.find(R"("startTime":1000,"endTime":3000,"usedTime":2000}})"), std::string::npos);
  EXPECT_NE(second.find(R"("startTime":2000,"endTime":4000,"usedTime":2000}})"), std::string::npos);
}

TEST_F(InsertRecordTest, CreateRdsIsAChildOfConnect) {
  FakePlatform::ScriptTicks({1000, 1250, 1300});
  Start(Id(), "create rds");
  End(Id(), "create rds");
  EXPECT_NE(OnlyLine().find(R"("args":{"stepName":"create rds","parentStepName":"Connect",)"),
            std::string::npos)
      << OnlyLine();
}

TEST_F(InsertRecordTest, ArgumentsAreCopiedBeforeTheCallReturns) {
  std::string id = Id();
  std::string step = "copied";
  VMetrics::InsertRecord(0, id.data(), "e", step.data(), "", 0);
  id.assign(id.size(), 'x');
  step.assign(step.size(), 'x');
  EXPECT_EQ(End(Id(), "copied"), 0);
}

TEST_F(InsertRecordTest, HundredAndFirstTransactionDropsAllOpenSteps) {
  for (int i = 1; i < 100; ++i) {
    ASSERT_EQ(Start("transaction " + std::to_string(i)), 0);
  }
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_EQ(Start("transaction 1", "another step"), 0);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());

  EXPECT_EQ(Start("transaction 100"), 0);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear()));
  EXPECT_EQ(End("transaction 100"), 0);
  for (int i = 1; i < 100; ++i) {
    EXPECT_EQ(End("transaction " + std::to_string(i)), -9996) << i;
  }
  EXPECT_EQ(FakePlatform::MetricsLines().size(), 1U);
}

// An end makes the transaction that it does not find, too.
TEST_F(InsertRecordTest, RefusedEventsCountTowardsTheHundred) {
  for (int i = 1; i < 100; ++i) {
    ASSERT_EQ(End("never started " + std::to_string(i)), -9996);
  }
  FakePlatform::Reset();
  EXPECT_EQ(VMetrics::InsertRecord(2, Id().c_str(), "e", "s", "", 0), -9996);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsResourceClear(),
                          IsInsertError("status[%d] is not exist", "status[2] is not exist")));
}

TEST_F(InsertRecordTest, TransactionWithoutMemoryHasNoObjectUntilTheTableIsCleared) {
  {
    // No text of this call is long enough to need memory before the transaction does.
    const AllocationFailure failure(1);
    EXPECT_EQ(VMetrics::InsertRecord(0, "no memory", "e", "s", "", 0), -9999);
    EXPECT_EQ(failure.Hits(), 1);
  }
  EXPECT_EQ(Start("no memory"), -9999);
  EXPECT_EQ(End("no memory"), -9999);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError("object is nullptr"), IsInsertError("object is nullptr"),
                          IsInsertError("object is nullptr")));
  ExpectNothingTouched();

  FakePlatform::Reset();
  MakeTableOfOne();
  EXPECT_EQ(Start("no memory"), 0);
  EXPECT_EQ(End("no memory"), 0);
}

/// Texts too long to be stored in place, so that every copy needs memory.
const std::string kLong(100, 'x');

// Whatever a failed start left behind, the step is not open: its end is refused. A transaction that
// was stored as null is the one exception; it is told apart by its status.
TEST_F(InsertRecordTest, StartWithoutMemoryOpensNoStep) {
  const std::string step = kLong + "step";
  std::string id;
  int thrown = 0;
  int refused = 0;
  const auto start = [&] {
    return std::to_string(
        VMetrics::InsertRecord(0, id.c_str(), kLong.c_str(), step.c_str(), kParent, 0));
  };
  const auto check = [&](const std::optional<std::string>& result, long) {
    thrown += result.has_value() ? 0 : 1;
    refused += result == "-9999" ? 1 : 0;
    EXPECT_EQ(End(id, step.c_str()), !result             ? VMETRICS_STEP_ERROR
                                     : result == "-9999" ? VMETRICS_INVALID
                                                         : VMETRICS_OK);
  };
  int number = 0;
  const auto prepare = [&] { id = kLong + Id() + std::to_string(++number); };
  FailEachAllocation(AllocationFailure::Extent::kOnce, prepare, start, check);
  EXPECT_EQ(refused, 1);
  EXPECT_GE(thrown, 8);  // Three texts, ID and entry of the transaction, entry of the step ...
  EXPECT_THAT(FakePlatform::MetricsLines(), SizeIs(1));
}

TEST_F(InsertRecordTest, EndWithoutMemoryCanBeRepeated) {
  const std::string id = kLong + Id();
  const std::string step = kLong + "step";
  const auto prepare = [&] {
    FakePlatform::Reset();
    Start(id, step.c_str());
    RoomForFileOperations();
    FakePlatform::Files()["spanId"] = kSpanA;
  };
  const auto check = [&](const std::optional<std::string>& result, long) {
    EXPECT_TRUE(!result || result == "0") << *result;
    EXPECT_FALSE(HasOpenSession());
    EXPECT_EQ(FakePlatform::MetricsLines().size(), result ? 1U : 0U);
    EXPECT_TRUE(IsSpanIdentifier(FakePlatform::Files()["spanId"]));
    EXPECT_EQ(End(id, step.c_str()), result ? VMETRICS_STEP_ERROR : VMETRICS_OK);
  };
  FailEachAllocation(
      AllocationFailure::Extent::kOnce, prepare,
      [&] { return std::to_string(End(id, step.c_str(), kParent)); }, check);
}

}  // namespace
