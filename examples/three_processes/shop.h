/// What the three programs agree on.
#ifndef SHOP_H_
#define SHOP_H_

#include <VMetrics.h>
#include <VPlatformConfig.h>

#include <chrono>
#include <string>
#include <thread>

namespace shop {

constexpr char kEvent[] = "SHOP_ORDER";
constexpr int kStepStarts = 0;
constexpr int kStepEnds = 1;

constexpr char kNoParent[] = "";
/// The step that ended last, in whatever process: its identifier is in the span file.
constexpr char kStepBefore[] = "ParentSpanId";

/// One log and one span file for all; their pipes are no place for metrics.
inline bool SetUp() {
  return VPlatformConfig::SetMetricsFile("metrics.log") &&
         VPlatformConfig::SetLockFileDirectory("spans");
}

/// Does the work, which returns 0 or an error code, as a step of the transaction `order`.
template <typename Work>
int Trace(const std::string& order, const char* step, const char* parent, Work work) {
  VMetrics::InsertRecord(kStepStarts, order.c_str(), kEvent, step, parent, 0);
  const int error = work();
  VMetrics::InsertRecord(kStepEnds, order.c_str(), kEvent, step, parent, error);
  return error;
}

/// Where a real shop would do something.
inline void Work(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace shop

#endif  // SHOP_H_
