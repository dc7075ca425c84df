// Every exported function in a process whose random device fails.

#include <gmock/gmock.h>

#include <cerrno>
#include <optional>
#include <random>
#include <string>
#include <system_error>
#include <vector>

#include "AllocationFailure.h"
#include "Host.h"
#include "Scenario.h"

namespace {

enum class Device { kWorks, kCannotBeOpened, kCannotBeRead };

Device device = Device::kWorks;
std::random_device::result_type draws = 0;

/// As the standard library's own throws.
void FailIf(Device failure) {
  if (device == failure) {
    throw std::system_error(EIO, std::generic_category(), "random_device");
  }
}

}  // namespace

// The standard library's random device: the libraries, too, take this program's.
void std::random_device::_M_init(const std::string&) { FailIf(Device::kCannotBeOpened); }

void std::random_device::_M_fini() {}

std::random_device::result_type std::random_device::_M_getval() {
  FailIf(Device::kCannotBeRead);
  return ++draws;
}

namespace {

using testing::ElementsAre;

class RandomDeviceTest : public testing::TestWithParam<Scenario> {
 protected:
  ~RandomDeviceTest() override { device = Device::kWorks; }

  /// What comes of the scenario's call with that device, as its outcomes tell it. An exception that
  /// is not the device's own gets through.
  static std::string Outcome(Device failure) {
    const Scenario& scenario = GetParam();
    Prepare(scenario);
    const View before = TheHost().Look();
    scenario.call();
    const View after = TheHost().Look();
    Prepare(scenario);
    const std::optional<std::string> result = Call(failure);
    const std::string changes = Changes(before, TheHost().Look(), after);  // Asking makes more.
    return result.value_or("device's exception") + changes + scenario.inspect();
  }

  /// Its result, unless the device's exception came out.
  static std::optional<std::string> Call(Device failure) {
    const long held = AllocationFailure::Held();
    device = failure;
    std::optional<std::string> result;
    try {
      result = GetParam().call();
    } catch (const std::system_error& error) {
      EXPECT_EQ(error.code(), std::error_code(EIO, std::generic_category()));
      EXPECT_STREQ(error.what(), "random_device: Input/output error");
    }
    device = Device::kWorks;
    EXPECT_TRUE(result.has_value() || AllocationFailure::Held() == held);
    return result;
  }

  /// Whoever makes an identifier is left where the first allocation that fails leaves him, as the
  /// identifier comes first; nobody else notices.
  static std::string ExpectedOutcome() {
    const std::vector<std::string>& outcomes = GetParam().outcomes;
    const std::string badAlloc = "bad_alloc";
    Prepare(GetParam());
    const auto drawsBefore = draws;
    GetParam().call();
    return draws == drawsBefore ? outcomes.back()
                                : "device's exception" + outcomes.front().substr(badAlloc.size());
  }
};

INSTANTIATE_TEST_SUITE_P(Each, RandomDeviceTest, testing::ValuesIn(AllScenarios()), NameOfScenario);

TEST_P(RandomDeviceTest, CannotBeOpened) {
  EXPECT_EQ(Outcome(Device::kCannotBeOpened), ExpectedOutcome());
}

TEST_P(RandomDeviceTest, CannotBeRead) {
  EXPECT_EQ(Outcome(Device::kCannotBeRead), ExpectedOutcome());
}

TEST(RandomDeviceUseTest, IdentifiersAloneNeedIt) {
  std::vector<std::string> users;
  for (const Scenario& scenario : AllScenarios()) {
    Prepare(scenario);
    const auto before = draws;
    scenario.call();
    if (draws != before) {
      users.push_back(scenario.name);
    }
  }
  EXPECT_THAT(users, ElementsAre("End", "EndWithParent", "EndWithoutParent", "EndWithoutFile",
                                 "EndWithoutLock", "Identifier"));
}

}  // namespace
