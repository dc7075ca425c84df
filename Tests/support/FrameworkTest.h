/// What every test of the framework's metrics begins and ends with.
#ifndef FRAMEWORKTEST_H_
#define FRAMEWORKTEST_H_

#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "VMetrics.h"

/// A new platform before the test; after it the catalogue as it was, so that no test meets what
/// another has registered.
class FrameworkTest : public testing::Test {
 protected:
  FrameworkTest() { FakePlatform::Reset(); }

  ~FrameworkTest() override { RestoreCatalogue(); }

  void RestoreCatalogue() const {
    VMetrics::GetMetricsMap() = metrics_;
    VMetrics::GetMetricsStringMap() = events_;
  }

  /// Whether the catalogue is as at the test's beginning.
  bool CatalogueIsUnchanged() const {
    return VMetrics::GetMetricsMap() == metrics_ && VMetrics::GetMetricsStringMap() == events_;
  }

 private:
  const MetricsMap metrics_ = VMetrics::GetMetricsMap();
  const MetricsStringMap events_ = VMetrics::GetMetricsStringMap();
};

#endif  // FRAMEWORKTEST_H_
