// Steps in little memory: what is taken out is what was put in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "trace/StepStore.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;

StepRecord RecordOf(std::string_view transaction, std::string_view span, std::string_view name) {
  StepRecord record;
  record.transactionId = transaction;
  record.spanId = span;
  record.name = name;
  return record;
}

std::vector<std::string> NamesOf(const StepStore& store, const Transaction& transaction) {
  std::vector<std::string> names;
  for (const Step* step : store.StepsOf(transaction)) {
    names.emplace_back(store.DescriptionOf(*step).name);
  }
  return names;
}

TEST(StepStoreTest, StepsAreKeptByTransactionInTheirOrder) {
  StepStore store;
  store.Add(RecordOf("t", "1", "a"));
  store.Add(RecordOf("u", "2", "b"));
  store.Add(RecordOf("t", "3", "c"));
  ASSERT_EQ(store.Transactions().size(), 2U);
  EXPECT_EQ(store.StepCount(), 3U);
  EXPECT_THAT(NamesOf(store, store.Transactions()[0]), ElementsAre("a", "c"));
  EXPECT_THAT(NamesOf(store, store.Transactions()[1]), ElementsAre("b"));
}

TEST(StepStoreTest, IdentifiersComeOutAsTheyWentIn) {
  const std::vector<std::string> texts = {
      "",
      "order-7",
      "3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a",
      "00000000-0000-0000-0000-000000000000",
      "ffffffff-ffff-ffff-ffff-ffffffffffff",
      "3F2A9C1E-8B7D-4C3E-9A55-0F1E2D3C4B5A",
      "3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5g",
      "3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5",
      "3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a5",
      "3f2a9c1e08b7d04c3e09a5500f1e2d3c4b5a",
      "3f2a9c1e-8b7d-4c3e-9a550-f1e2d3c4b5a",
      std::string("\0 36 bytes \xF0\x80\xFF, but no digits ------", 36)};
  StepStore store;
  for (const std::string& text : texts) {
    StepRecord record = RecordOf(text, text, "s");
    record.parentSpanId = text;
    store.Add(record);
  }
  ASSERT_EQ(store.Transactions().size(), texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const Transaction& transaction = store.Transactions()[i];
    EXPECT_EQ(store.TextOf(transaction.identifier), texts[i]);
    EXPECT_EQ(store.TextOf(store.StepsOf(transaction).front()->span), texts[i]);
    EXPECT_EQ(store.TextOf(store.StepsOf(transaction).front()->parent), texts[i]);
  }
}

TEST(StepStoreTest, TextsOfAStepAreKeptApart) {
  StepStore store;
  StepRecord record = RecordOf("t", "1", "ab");
  record.eventId = "c";
  store.Add(record);
  record.name = "a";
  record.eventId = "bc";
  record.parentName = std::string_view("d\0e", 3);
  store.Add(record);
  const std::vector<const Step*> steps = store.StepsOf(store.Transactions().front());
  EXPECT_EQ(store.DescriptionOf(*steps[0]).name, "ab");
  EXPECT_EQ(store.DescriptionOf(*steps[0]).eventId, "c");
  EXPECT_EQ(store.DescriptionOf(*steps[0]).parentName, "");
  EXPECT_EQ(store.DescriptionOf(*steps[1]).name, "a");
  EXPECT_EQ(store.DescriptionOf(*steps[1]).eventId, "bc");
  EXPECT_EQ(store.DescriptionOf(*steps[1]).parentName, std::string_view("d\0e", 3));
}

TEST(StepStoreTest, ATransactionKnowsItsExtentAndWhetherItFailed) {
  StepStore store;
  StepRecord record = RecordOf("t", "1", "s");
  store.Add(record);
  const Transaction& transaction = store.Transactions().front();
  EXPECT_EQ(transaction.firstStart, kNoTick);
  EXPECT_EQ(transaction.lastEnd, kNoTick);
  EXPECT_FALSE(transaction.hasFailed);
  record.start = 50;
  record.end = 60;
  record.isFailed = true;
  store.Add(record);
  record.start = 40;
  record.end = 253402300800000;
  record.isFailed = false;
  store.Add(record);
  EXPECT_EQ(transaction.firstStart, 40);
  EXPECT_EQ(transaction.lastEnd, 60);
  EXPECT_TRUE(transaction.hasFailed);
}

TEST(StepStoreTest, AnEndFarBehindTheLineItselfIsDoubtful) {
  StepStore store;
  StepRecord record = RecordOf("t", "1", "s");
  record.written = 70;
  record.start = 50;
  record.end = 70 + kLongestPause;
  store.Add(record);
  const Transaction& transaction = store.Transactions().front();
  EXPECT_EQ(transaction.lastEnd, 70 + kLongestPause);
  EXPECT_FALSE(transaction.hasDoubtfulEnd);
  record.transactionId = "u";
  ++record.end;
  store.Add(record);
  EXPECT_EQ(store.Transactions().back().lastEnd, 70);
  EXPECT_TRUE(store.Transactions().back().hasDoubtfulEnd);
  StepStore copy;
  copy.AddCopy(store, store.Transactions().back());
  EXPECT_EQ(copy.Transactions().front().lastEnd, 70);
  EXPECT_TRUE(copy.Transactions().front().hasDoubtfulEnd);
}

TEST(StepStoreTest, ACopyIsTheSameInAnotherStore) {
  StepStore store;
  StepRecord record = RecordOf("order-7", "span", "first");
  store.Add(RecordOf("other", "s", "x"));
  record.parentSpanId = "3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a";
  record.start = 1;
  record.end = 2;
  record.errorCode = -5;
  record.hasErrorCode = true;
  record.isFailed = true;
  store.Add(record);
  record.name = "second";
  store.Add(record);
  StepStore copy;
  copy.AddCopy(store, store.Transactions()[1]);
  ASSERT_EQ(copy.Transactions().size(), 1U);
  const Transaction& transaction = copy.Transactions().front();
  EXPECT_EQ(copy.TextOf(transaction.identifier), "order-7");
  EXPECT_EQ(transaction.lastEnd, 2);
  EXPECT_THAT(NamesOf(copy, transaction), ElementsAre("first", "second"));
  const Step& step = *copy.StepsOf(transaction).front();
  EXPECT_EQ(copy.TextOf(step.span), "span");
  EXPECT_EQ(copy.TextOf(step.parent), "3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a");
  EXPECT_EQ(step.errorCode, -5);
  EXPECT_TRUE(step.hasErrorCode);
  EXPECT_TRUE(step.isFailed);
}

TEST(StepStoreTest, ManyTransactionsAreAllFoundAgain) {
  StepStore store;
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 5000; ++i) {
      store.Add(RecordOf(std::to_string(i), "s", "s"));
    }
  }
  ASSERT_EQ(store.Transactions().size(), 5000U);
  for (const Transaction& transaction : store.Transactions()) {
    ASSERT_EQ(transaction.stepCount, 2U);
  }
}

}  // namespace
}  // namespace vmetrics
