// Every exported function of the libraries as they are shipped, in several scenarios, with each of
// its allocations failing.

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "FailEachAllocation.h"
#include "Host.h"
#include "Scenario.h"

namespace {

std::vector<Scenario> ScenariosThatAllocate(bool allocate) {
  std::vector<Scenario> some;
  for (const Scenario& scenario : AllScenarios()) {
    if ((scenario.outcomes.size() > 1) == allocate) {
      some.push_back(scenario);
    }
  }
  return some;
}

/// `text` at the end, unless it stands there already.
void Add(std::vector<std::string>& texts, const std::string& text) {
  if (texts.empty() || texts.back() != text) {
    texts.push_back(text);
  }
}

bool IsBadAlloc(const std::string& outcome) { return outcome.rfind("bad_alloc", 0) == 0; }

/// The outcomes when no allocation succeeds any more: a call that would have told of its failure
/// by its status does not get that far.
std::vector<std::string> OutcomesWithoutMemory(const std::vector<std::string>& outcomes) {
  std::vector<std::string> left;
  for (const std::string& outcome : outcomes) {
    if (IsBadAlloc(outcome) || &outcome == &outcomes.back()) {
      Add(left, outcome);
    }
  }
  return left;
}

class AllocationSweepTest : public testing::TestWithParam<Scenario> {
 protected:
  /// How many allocations failed, by function.
  static std::map<std::string, int> failed_;

  /// Told where one process runs all tests, as in bin/soak: ctest starts one for each.
  static void TearDownTestSuite() {
    for (const auto& [function, count] : failed_) {
      std::printf("%6d allocations failed in %s\n", count, function.c_str());
    }
  }

  static void ExpectOutcomes(AllocationFailure::Extent extent,
                             const std::vector<std::string>& expected) {
    const Scenario& scenario = GetParam();
    Prepare(scenario);
    const View before = TheHost().Look();
    scenario.call();
    const View after = TheHost().Look();
    std::vector<std::string> outcomes;
    failed_[scenario.function] += FailEachAllocation(
        extent, [&scenario] { Prepare(scenario); }, scenario.call,
        [&](const std::optional<std::string>& result, long kept) {
          EXPECT_TRUE(result.has_value() || scenario.changesTable || kept == 0) << kept;
          const std::string changes = Changes(before, TheHost().Look(), after);
          Add(outcomes, result.value_or("bad_alloc") + changes + scenario.inspect());
        });
    EXPECT_EQ(outcomes, expected);
  }
};

std::map<std::string, int> AllocationSweepTest::failed_;

INSTANTIATE_TEST_SUITE_P(Each, AllocationSweepTest, testing::ValuesIn(ScenariosThatAllocate(true)),
                         NameOfScenario);

TEST_P(AllocationSweepTest, OneAllocationFails) {
  ExpectOutcomes(AllocationFailure::Extent::kOnce, GetParam().outcomes);
}

TEST_P(AllocationSweepTest, AllAllocationsFailFromThereOn) {
  ExpectOutcomes(AllocationFailure::Extent::kFromThereOn,
                 OutcomesWithoutMemory(GetParam().outcomes));
}

class NoAllocationTest : public testing::TestWithParam<Scenario> {};

INSTANTIATE_TEST_SUITE_P(Each, NoAllocationTest, testing::ValuesIn(ScenariosThatAllocate(false)),
                         NameOfScenario);

// A memory that has run out makes no difference, then.
TEST_P(NoAllocationTest, AsksForNoMemory) {
  const Scenario& scenario = GetParam();
  Prepare(scenario);
  const View before = TheHost().Look();
  const long allocations = AllocationFailure::Allocations();
  std::string result = scenario.call();
  EXPECT_EQ(AllocationFailure::Allocations() - allocations, 0);
  const View after = TheHost().Look();
  EXPECT_EQ(result + Changes(before, after, after) + scenario.inspect(), scenario.outcomes.front());
}

TEST(AllocationSweepCoverageTest, EveryExportedFunctionIsSwept) {
  std::ifstream list(VMETRICS_GOLDEN "/exported_symbols.txt");
  std::set<std::string> exported;
  for (std::string function; std::getline(list, function);) {
    exported.insert(function);
  }
  std::set<std::string> swept;
  for (const Scenario& scenario : AllScenarios()) {
    swept.insert(scenario.function);
  }
  EXPECT_EQ(swept, exported);
  EXPECT_EQ(exported.size(), 20U);
}

// Only these need none at all.
TEST(AllocationSweepCoverageTest, EveryFunctionButTheAccessorsIsSweptWithFailures) {
  std::set<std::string> all;
  std::set<std::string> failing;
  for (const Scenario& scenario : AllScenarios()) {
    all.insert(scenario.function);
    if (scenario.outcomes.size() > 1) {
      failing.insert(scenario.function);
    }
  }
  failing.insert({"VMetrics::GetMetricsMap()", "VMetrics::GetMetricsStringMap()"});
  EXPECT_EQ(failing, all);
}

}  // namespace
