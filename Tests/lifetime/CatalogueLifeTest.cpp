// When the two catalogues come into being and when they go, seen from the heap.

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "AllocationRecord.h"
#include "VMetrics.h"

namespace {

using AllocationRecord::Moment;
using testing::Each;
using testing::Lt;
using testing::SizeIs;

/// Loads the library for the time of one test, and asks for both catalogues.
class CatalogueLifeTest : public testing::Test {
 protected:
  void SetUp() override {
    AllocationRecord::Begin();
    library_ = dlopen(VMETRICS_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    loaded_ = AllocationRecord::Now();
    ASSERT_NE(library_, nullptr) << dlerror();
    // The functions' names as the linker knows them; this program itself has neither.
    const auto getMetricsMap = Function<MetricsMap&()>("_ZN8VMetrics13GetMetricsMapB5cxx11Ev");
    const auto getMetricsStringMap =
        Function<MetricsStringMap&()>("_ZN8VMetrics19GetMetricsStringMapB5cxx11Ev");
    ASSERT_NE(getMetricsMap, nullptr);
    ASSERT_NE(getMetricsStringMap, nullptr);
    const Moment before = AllocationRecord::Now();
    const MetricsMap& metrics = getMetricsMap();
    const MetricsStringMap& events = getMetricsStringMap();
    heapUsesOfFirstCalls_ = AllocationRecord::Now() - before;
    metrics_ = NodesTakenAt(metrics);
    events_ = NodesTakenAt(events);
  }

  void TearDown() override { Unload(); }

  void Unload() {
    if (library_ != nullptr) {
      EXPECT_EQ(dlclose(library_), 0) << dlerror();
      EXPECT_EQ(dlopen(VMETRICS_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "it is still there";
      library_ = nullptr;
    }
  }

  /// When the given nodes were given back.
  static std::vector<Moment> GivenBackAt(std::vector<Moment> nodes) {
    std::transform(nodes.begin(), nodes.end(), nodes.begin(), AllocationRecord::GivenBackAt);
    return nodes;
  }

  /// Whether all of `first` were before all of `second`.
  static bool IsBefore(const std::vector<Moment>& first, const std::vector<Moment>& second) {
    return *std::max_element(first.begin(), first.end()) <
           *std::min_element(second.begin(), second.end());
  }

  Moment loaded_ = 0;
  std::size_t heapUsesOfFirstCalls_ = 0;
  std::vector<Moment> metrics_;  ///< When each node of the numeric catalogue was taken.
  std::vector<Moment> events_;   ///< The same of the string catalogue.

 private:
  template <typename Signature>
  Signature* Function(const char* name) const {
    return reinterpret_cast<Signature*>(dlsym(library_, name));
  }

  template <typename Map>
  static std::vector<Moment> NodesTakenAt(const Map& map) {
    std::vector<Moment> moments;
    for (const auto& entry : map) {
      moments.push_back(AllocationRecord::TakenAt(&entry));
    }
    return moments;
  }

  void* library_ = nullptr;
};

TEST_F(CatalogueLifeTest, IsBuiltWhenTheLibraryIsLoaded) {
  EXPECT_THAT(metrics_, SizeIs(121));
  EXPECT_THAT(events_, SizeIs(13));
  EXPECT_THAT(metrics_, Each(Lt(loaded_)));
  EXPECT_THAT(events_, Each(Lt(loaded_)));
}

TEST_F(CatalogueLifeTest, IsOnlyHandedOutByItsFunctions) { EXPECT_EQ(heapUsesOfFirstCalls_, 0U); }

TEST_F(CatalogueLifeTest, NumericCatalogueIsBuiltFirst) {
  EXPECT_TRUE(IsBefore(metrics_, events_));
}

TEST_F(CatalogueLifeTest, StringCatalogueIsDestroyedFirst) {
  const Moment unloading = AllocationRecord::Now();
  Unload();
  const Moment unloaded = AllocationRecord::Now();
  const std::vector<Moment> metrics = GivenBackAt(metrics_);
  const std::vector<Moment> events = GivenBackAt(events_);
  EXPECT_THAT(events, Each(testing::Ge(unloading)));
  EXPECT_THAT(metrics, Each(Lt(unloaded)));
  EXPECT_TRUE(IsBefore(events, metrics));
}

}  // namespace
