#include "InUse.h"

#include <atomic>

#include "FakePlatform.h"
#include "VMetrics.h"

namespace TestKit {
namespace {

std::atomic<bool> notInUse{false};

}  // namespace

void SeeWhetherInUse() {
  const int before = FakePlatform::TicksRead();
  const VMetricsData record = {};
  VMetrics::GetBaseMetricsString(&record);  // Each rendering reads the clock for its time stamp.
  notInUse = FakePlatform::TicksRead() == before;
}

std::string NotInUse() {
  return notInUse ? "the library does not use the test kit: see \"How it gets in\" of its page"
                  : std::string();
}

}  // namespace TestKit
