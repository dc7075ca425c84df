// What a test sets up before it calls its component.

#include <algorithm>

#include "FakePlatform.h"
#include "FakePlatformState.h"
#include "InUse.h"
#include "ResetSettings.h"
#include "VMetrics.h"
#include "VMetricsTestKit.h"

namespace {

constexpr char kSpanFileName[] = "spanId";

struct Catalogue {
  MetricsMap metrics;
  MetricsStringMap events;
};

/// As it was at the first call. Never destroyed, as the library's may be gone by then.
const Catalogue& FirstCatalogue() {
  static const Catalogue& first =
      *new Catalogue{VMetrics::GetMetricsMap(), VMetrics::GetMetricsStringMap()};
  return first;
}

}  // namespace

namespace TestKit {

static_assert(kFirstTick == FakePlatform::kFirstTick, "the header says what the clock reads");

void Reset() {
  const Catalogue& first = FirstCatalogue();
  VMetrics::GetMetricsMap() = first.metrics;
  VMetrics::GetMetricsStringMap() = first.events;
  SeeWhetherInUse();
  FakePlatform::Reset();
  ResetSettings();
}

void SetTick(unsigned long tick) { FakePlatform::ScriptTicks({tick}); }

void AdvanceTick(unsigned long milliseconds) {
  const FakePlatform::LockedState state;
  const auto next = static_cast<std::size_t>(state->ticksRead);
  const unsigned long tick = state->ticks[std::min(next, state->ticks.size() - 1)];
  state->ticks = {tick + milliseconds};
}

void ScriptTicks(const std::vector<unsigned long>& ticks) {
  FakePlatform::ScriptTicks(ticks.empty() ? std::vector<unsigned long>{kFirstTick} : ticks);
}

void SetSpanFile(const std::string& identifier) {
  FakePlatform::LockedState()->files[kSpanFileName] = identifier;
}

std::string SpanFile() {
  const FakePlatform::LockedState state;
  const auto file = state->files.find(kSpanFileName);
  return file == state->files.end() ? std::string() : file->second;
}

void RefuseLocks(int first, int last) { FakePlatform::RefuseLocks(first, last); }

void RefuseAllLocks() { FakePlatform::RefuseAllLocks(); }

void LimitWrites(int bytes) { FakePlatform::LimitWrites(bytes); }

}  // namespace TestKit
