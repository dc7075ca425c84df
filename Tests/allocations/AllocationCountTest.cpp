// How often each operation asks operator new for memory, on the real platform, the result that it
// returns included. Golden counts, so that one more is a decision and not an accident.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "AllocationFailure.h"
#include "Operations.h"
#include "TemporaryDirectory.h"

namespace {

constexpr int kFirstCalls = 3;  // They make what is kept between calls.
constexpr int kCountedCalls = 3;

const std::map<std::string, long>& GoldenCounts() {
  static const std::map<std::string, long> counts = [] {
    std::map<std::string, long> read;
    std::ifstream table(VMETRICS_GOLDEN "/allocations.tsv");
    std::string name;
    long count = 0;
    while (table >> name >> count) {
      read[name] = count;
    }
    return read;
  }();
  return counts;
}

long AllocationsOf(const Operation& operation) {
  const long before = AllocationFailure::Allocations();
  const bool succeeded = operation.call();
  const long allocations = AllocationFailure::Allocations() - before;
  EXPECT_TRUE(succeeded);
  return allocations;
}

class AllocationCountTest : public testing::TestWithParam<Operation> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(PrepareOperations(directory_.Path(), kFirstCalls + kCountedCalls));
    for (int call = 0; call < kFirstCalls; ++call) {
      ASSERT_TRUE(GetParam().call());
    }
  }

 private:
  const TemporaryDirectory directory_;
};

INSTANTIATE_TEST_SUITE_P(Each, AllocationCountTest, testing::ValuesIn(Operations()),
                         [](const testing::TestParamInfo<Operation>& operation) {
                           return std::string(operation.param.name);
                         });

TEST_P(AllocationCountTest, IsTheGoldenOneInEachCall) {
  ASSERT_EQ(GoldenCounts().count(GetParam().name), 1U);
  for (int call = 0; call < kCountedCalls; ++call) {
    EXPECT_EQ(AllocationsOf(GetParam()), GoldenCounts().at(GetParam().name));
  }
}

TEST(GoldenAllocationsTest, HaveARowForEachOperationAndNoOther) {
  EXPECT_EQ(GoldenCounts().size(), Operations().size());
}

TEST(GoldenAllocationsTest, OfANumericRecordAreAtMostThree) {
  EXPECT_LE(GoldenCounts().at("GetBaseMetricsString"), 3);
}

TEST(GoldenAllocationsTest, OfAStringRecordWithAShortPayloadAreAtMostSix) {
  EXPECT_LE(GoldenCounts().at("GetStringBaseMetricsString_short"), 6);
}

}  // namespace
