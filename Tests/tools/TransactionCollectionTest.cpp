// Which transactions are kept while a log is read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "trace/TransactionCollection.h"

namespace vmetrics {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

class TransactionCollectionTest : public testing::Test {
 protected:
  static constexpr TransactionCollection::Limits kLimits = {4, 6};

  void Add(std::string_view transaction, std::int64_t end, bool isFailed = false) {
    StepRecord record;
    record.transactionId = transaction;
    record.spanId = "s";
    record.name = "s";
    record.start = end - 1;
    record.end = end;
    record.isFailed = isFailed;
    collection_.Add(record);
  }

  /// So many transactions with one step each, from that time on.
  void AddMany(int count, std::int64_t since) {
    for (int i = 0; i < count; ++i) {
      Add("many " + std::to_string(since + i), since + i);
    }
  }

  std::vector<std::string> Kept() const {
    std::vector<std::string> identifiers;
    for (const Transaction& transaction : collection_.Store().Transactions()) {
      identifiers.push_back(collection_.Store().TextOf(transaction.identifier));
    }
    return identifiers;
  }

  const Transaction* Find(std::string_view identifier) const {
    for (const Transaction& transaction : collection_.Store().Transactions()) {
      if (collection_.Store().TextOf(transaction.identifier) == identifier) {
        return &transaction;
      }
    }
    return nullptr;
  }

  Selection selection_;
  TransactionCollection collection_{selection_, kLimits};
};

TEST_F(TransactionCollectionTest, WithoutALastOneAllAreKept) {
  AddMany(100, 1000);
  EXPECT_EQ(Kept().size(), 100U);
}

TEST_F(TransactionCollectionTest, OnlyThoseNamedAreKept) {
  selection_.transactions = {"a", "b"};
  Add("a", 1);
  Add("c", 2);
  Add("b", 3);
  EXPECT_THAT(Kept(), ElementsAre("a", "b"));
}

TEST_F(TransactionCollectionTest, WhereLinksAreAskedForAllAreKept) {
  selection_.transactions = {"a"};
  selection_.last = 1;
  collection_.KeepAll();
  AddMany(100, 1000);
  EXPECT_EQ(Kept().size(), 100U);
}

TEST_F(TransactionCollectionTest, TheLastOnesAreKeptWithSomeToSpare) {
  selection_.last = 1;
  AddMany(11, 1000);
  EXPECT_THAT(Kept(), ElementsAre("many 1006", "many 1007", "many 1008", "many 1009", "many 1010"));
}

TEST_F(TransactionCollectionTest, LastIsWhatEndedLastNotWhatWasReadLast) {
  selection_.last = 1;
  Add("latest", 5000);
  AddMany(50, 1000);
  EXPECT_THAT(Kept(), Contains("latest"));
}

TEST_F(TransactionCollectionTest, TheLastOfThoseThatAreAskedForAreKept) {
  selection_.last = 2;
  selection_.onlyFailed = true;
  Add("failed first", 10, true);
  Add("failed second", 20, true);
  Add("failed third", 30, true);
  AddMany(50, 1000);
  EXPECT_THAT(Kept(), IsSupersetOf({"failed second", "failed third"}));
  EXPECT_THAT(Kept(), Not(Contains("failed first")));
}

TEST_F(TransactionCollectionTest, OneThatComesBackIsKnownToBeIncomplete) {
  selection_.last = 1;
  Add("comes back", 1);
  Add("stays", 9000);
  AddMany(50, 1000);
  EXPECT_THAT(Kept(), Not(Contains("comes back")));
  Add("comes back", 9001);
  ASSERT_NE(Find("comes back"), nullptr);
  EXPECT_TRUE(collection_.IsIncomplete(*Find("comes back")));
  EXPECT_FALSE(collection_.IsIncomplete(*Find("stays")));
}

TEST_F(TransactionCollectionTest, TransactionsWithManyStepsAreDroppedEarlier) {
  selection_.last = 1;
  for (int i = 0; i < 5; ++i) {
    for (int step = 0; step < 3; ++step) {
      Add("long " + std::to_string(i), 1000 + i);
    }
  }
  EXPECT_LE(collection_.Store().StepCount(), 13U);
  EXPECT_THAT(Kept(), Contains("long 4"));
  EXPECT_THAT(Kept(), Not(Contains("long 0")));
}

TEST_F(TransactionCollectionTest, TheLastOneIsKeptHoweverManyStepsItHas) {
  selection_.last = 1;
  Add("other", 1);
  for (int i = 0; i < 1000; ++i) {
    Add("long", 1000 + i);
  }
  ASSERT_NE(Find("long"), nullptr);
  EXPECT_EQ(Find("long")->stepCount, 1000U);
  EXPECT_FALSE(collection_.IsIncomplete(*Find("long")));
}

}  // namespace
}  // namespace vmetrics
