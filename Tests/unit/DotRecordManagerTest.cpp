#include <gtest/gtest.h>

#include <new>
#include <string>

#include "AllocationFailure.h"
#include "DotRecord/DotRecordManager.h"
#include "SpanMatchers.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::NotNull;
using testing::Pair;
using testing::SizeIs;
using vmetrics::DotRecordManager;
using vmetrics::DotTransaction;
using vmetrics::GetDotTransaction;

class DotRecordManagerTest : public testing::Test {
 protected:
  DotRecordManagerTest() { FakePlatform::Reset(); }

  /// Makes transactions "0" to `count` - 1, each with an open step.
  void Fill(int count) {
    for (int i = 0; i < count; ++i) {
      DotTransaction* const transaction = GetDotTransaction(manager, std::to_string(i));
      ASSERT_THAT(transaction, NotNull());
      transaction->stepStarts["open"] = 1;
    }
  }

  /// Asks for a transaction whose allocation fails.
  DotTransaction* GetWithoutMemory(const std::string& id) {
    const AllocationFailure failure(1);
    DotTransaction* const transaction = GetDotTransaction(manager, id);
    EXPECT_EQ(failure.Hits(), 1);
    return transaction;
  }

  DotRecordManager manager;
};

TEST_F(DotRecordManagerTest, NewOneHasRoomForAHundredAndIsEmpty) {
  EXPECT_EQ(manager.capacity, 100);
  EXPECT_THAT(manager.transactions, IsEmpty());
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotRecordManagerTest, FirstEventMakesTheTransaction) {
  DotTransaction* const transaction = GetDotTransaction(manager, "a");
  ASSERT_THAT(transaction, NotNull());
  EXPECT_EQ(transaction->transactionId, "a");
  EXPECT_THAT(transaction->stepStarts, IsEmpty());
  EXPECT_THAT(manager.transactions, ElementsAre(Pair("a", transaction)));
}

TEST_F(DotRecordManagerTest, LaterEventsFindIt) {
  DotTransaction* const transaction = GetDotTransaction(manager, "a");
  EXPECT_EQ(GetDotTransaction(manager, "a"), transaction);
  EXPECT_THAT(manager.transactions, SizeIs(1));
}

TEST_F(DotRecordManagerTest, IdsAreComparedWhole) {
  const std::string withNul("a\0b", 3);
  EXPECT_NE(GetDotTransaction(manager, "a"), GetDotTransaction(manager, "A"));
  EXPECT_NE(GetDotTransaction(manager, "a"), GetDotTransaction(manager, withNul));
  EXPECT_THAT(manager.transactions, SizeIs(3));
}

TEST_F(DotRecordManagerTest, EmptyIdHasNoTransactionAndIsNotLogged) {
  EXPECT_THAT(GetDotTransaction(manager, ""), IsNull());
  EXPECT_THAT(manager.transactions, IsEmpty());
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotRecordManagerTest, EmptyIdClearsNotEvenAFullTable) {
  Fill(100);
  EXPECT_THAT(GetDotTransaction(manager, ""), IsNull());
  EXPECT_THAT(manager.transactions, SizeIs(100));
}

TEST_F(DotRecordManagerTest, HundredthTransactionFits) {
  Fill(99);
  GetDotTransaction(manager, "99");
  EXPECT_THAT(manager.transactions, SizeIs(100));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotRecordManagerTest, HundredAndFirstClearsAllOthers) {
  Fill(100);
  DotTransaction* const transaction = GetDotTransaction(manager, "100");
  ASSERT_THAT(transaction, NotNull());
  EXPECT_THAT(manager.transactions, ElementsAre(Pair("100", transaction)));
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear()));
}

TEST_F(DotRecordManagerTest, HundredAndFirstDropsTheOpenStepsOfAllOthers) {
  Fill(100);
  GetDotTransaction(manager, "100");
  for (int i = 0; i < 99; ++i) {
    EXPECT_THAT(GetDotTransaction(manager, std::to_string(i))->stepStarts, IsEmpty()) << i;
  }
  EXPECT_THAT(FakePlatform::LogLines(), SizeIs(1));
}

TEST_F(DotRecordManagerTest, KnownIdClearsNothingInAFullTable) {
  Fill(100);
  for (int i = 0; i < 100; ++i) {
    EXPECT_THAT(GetDotTransaction(manager, std::to_string(i))->stepStarts, SizeIs(1)) << i;
  }
  EXPECT_THAT(manager.transactions, SizeIs(100));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotRecordManagerTest, TableFillsUpAgainAfterEachClearing) {
  Fill(301);
  EXPECT_THAT(manager.transactions, SizeIs(1));
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsResourceClear(), IsResourceClear(), IsResourceClear()));
}

TEST_F(DotRecordManagerTest, CapacityIsAskedForAtEachNewTransaction) {
  manager.capacity = 2;
  Fill(3);
  EXPECT_THAT(manager.transactions, SizeIs(1));
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear()));
}

TEST_F(DotRecordManagerTest, ClearingEmptiesTheTableAndKeepsTheCapacity) {
  Fill(3);
  manager.capacity = 7;
  manager.ResourceClear();
  EXPECT_THAT(manager.transactions, IsEmpty());
  EXPECT_EQ(manager.capacity, 7);
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear()));
}

TEST_F(DotRecordManagerTest, ClearingAnEmptyTableIsLoggedToo) {
  manager.ResourceClear();
  manager.ResourceClear();
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear(), IsResourceClear()));
}

TEST_F(DotRecordManagerTest, DestructorSaysItsLastWordOnce) {
  {
    DotRecordManager shortLived;
    GetDotTransaction(shortLived, "a");
    GetDotTransaction(shortLived, "b");
  }
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear()));
}

TEST_F(DotRecordManagerTest, DestructorOfAnEmptyOneSaysItToo) {
  { const DotRecordManager shortLived; }
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsResourceClear()));
}

TEST_F(DotRecordManagerTest, FailedAllocationIsStoredAsNull) {
  EXPECT_THAT(GetWithoutMemory("a"), IsNull());
  EXPECT_THAT(manager.transactions, ElementsAre(Pair("a", IsNull())));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(DotRecordManagerTest, FailedAllocationStaysNullWhenMemoryIsBack) {
  GetWithoutMemory("a");
  EXPECT_THAT(GetDotTransaction(manager, "a"), IsNull());
  EXPECT_THAT(GetDotTransaction(manager, "b"), NotNull());
  EXPECT_THAT(GetDotTransaction(manager, "a"), IsNull());
  EXPECT_THAT(manager.transactions, SizeIs(2));
}

TEST_F(DotRecordManagerTest, FailedAllocationIsForgottenWithTheTable) {
  GetWithoutMemory("a");
  manager.ResourceClear();
  EXPECT_THAT(GetDotTransaction(manager, "a"), NotNull());
}

TEST_F(DotRecordManagerTest, FailedAllocationCountsTowardsTheHundred) {
  GetWithoutMemory("a");
  Fill(99);
  EXPECT_THAT(manager.transactions, SizeIs(100));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  GetDotTransaction(manager, "b");
  EXPECT_THAT(manager.transactions, ElementsAre(Pair("b", NotNull())));
}

TEST_F(DotRecordManagerTest, ClearingGivesAllMemoryBack) {
  const long before = AllocationFailure::Held();
  Fill(3);
  EXPECT_GT(AllocationFailure::Held(), before);
  manager.ResourceClear();
  FakePlatform::Reset();  // It holds the line that was logged.
  EXPECT_EQ(AllocationFailure::Held(), before);
}

// The clearing comes before the allocation, so it has happened whatever becomes of that.
TEST_F(DotRecordManagerTest, FailedAllocationOfTheHundredAndFirstHasClearedTheTable) {
  Fill(100);
  int number = 1;
  while (manager.transactions.size() != 1) {
    const AllocationFailure failure(number++);
    try {
      GetDotTransaction(manager, "100");
    } catch (const std::bad_alloc&) {
      // The faked logger needs memory, too; the table is full or empty.
      ASSERT_THAT(manager.transactions.size(), testing::AnyOf(0U, 100U));
    }
  }
  EXPECT_THAT(manager.transactions, ElementsAre(Pair("100", IsNull())));
}

// An ID too long to be stored in place: transaction, its ID, the entry and the entry's key each
// need memory. Only the first of them makes a null; without the others nothing has happened.
TEST_F(DotRecordManagerTest, RunningOutOfMemoryLaterLeavesTheTable) {
  const std::string id(100, 'x');
  for (int number = 2; number <= 4; ++number) {
    const AllocationFailure failure(number);
    EXPECT_THROW(GetDotTransaction(manager, id), std::bad_alloc) << number;
    EXPECT_THAT(manager.transactions, IsEmpty());
  }
  EXPECT_THAT(GetDotTransaction(manager, id), NotNull());
}

}  // namespace
