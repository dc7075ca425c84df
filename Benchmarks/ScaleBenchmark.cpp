// What more threads and a larger catalogue change.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

#include "Records.h"

namespace {

constexpr int kFirstId = 0x40000000;
constexpr char kNotAll[] = "not all metrics were registered";

using Definition = std::vector<char>;

enum class Order { kAscending, kShuffled };

template <typename Element>
void Shuffle(std::vector<Element>& elements) {
  std::shuffle(elements.begin(), elements.end(), std::mt19937(1));
}

std::vector<Definition> MakeDefinitions(int count, Order order) {
  std::vector<Definition> definitions;
  for (int i = 0; i < count; ++i) {
    char text[64];
    const int length = std::snprintf(text, sizeof text, "%d;int;metric%d;0", kFirstId + i, i);
    definitions.emplace_back(text, text + length + 1);
  }
  if (order == Order::kShuffled) {
    Shuffle(definitions);
  }
  return definitions;
}

void Register(std::vector<Definition>& definitions) {
  for (Definition& definition : definitions) {
    VMetrics::RegisterMetricsDataType(definition.data());
  }
}

/// Removes what was registered; false when that were not `count` metrics.
bool Unregister(std::size_t count) {
  MetricsMap& catalogue = VMetrics::GetMetricsMap();
  const std::size_t before = catalogue.size();
  catalogue.erase(catalogue.lower_bound(kFirstId), catalogue.end());
  return before - catalogue.size() == count;
}

void Render(benchmark::State& state) {
  for (auto iteration : state) {
    benchmark::DoNotOptimize(VMetrics::GetBaseMetricsString(NumericRecord()));
  }
  state.SetItemsProcessed(state.iterations());
}

/// One and the same built-in metric, beside `range(0)` others.
void RenderAmong(benchmark::State& state) {
  std::vector<Definition> definitions =
      MakeDefinitions(static_cast<int>(state.range(0)), Order::kAscending);
  Register(definitions);
  Render(state);
  if (!Unregister(definitions.size())) {
    state.SkipWithError(kNotAll);
  }
}

/// `range(0)` registered metrics by turns, in no order.
void RenderAnyOf(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  std::vector<Definition> definitions = MakeDefinitions(count, Order::kShuffled);
  Register(definitions);
  std::vector<int> ids(static_cast<std::size_t>(count));
  std::iota(ids.begin(), ids.end(), kFirstId);
  Shuffle(ids);
  unsigned char bytes[sizeof(VMetricsData) + sizeof(int)];
  std::memcpy(bytes, NumericRecord(), sizeof bytes);
  auto* const record = reinterpret_cast<VMetricsData*>(bytes);
  std::size_t next = 0;
  for (auto iteration : state) {
    record->eventId = static_cast<std::uint32_t>(ids[next]);
    next = next + 1 < ids.size() ? next + 1 : 0;
    benchmark::DoNotOptimize(VMetrics::GetBaseMetricsString(record));
  }
  if (!Unregister(ids.size())) {
    state.SkipWithError(kNotAll);
  }
}

/// The time for one entry, while `range(0)` of them are registered. Each time on memory that the
/// system hands out anew, as in a host that starts: a few entries would otherwise get what the last
/// ones left, and many would not.
template <Order kOrder>
void RegisterMany(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  bool registered = true;
  for (auto iteration : state) {
    state.PauseTiming();
    std::vector<Definition> definitions = MakeDefinitions(count, kOrder);
    malloc_trim(0);
    state.ResumeTiming();
    Register(definitions);
    state.PauseTiming();
    registered = Unregister(definitions.size()) && registered;
    state.ResumeTiming();
  }
  if (!registered) {
    state.SkipWithError(kNotAll);
  }
  state.SetItemsProcessed(state.iterations() * count);
}

// Rates are of the time on the wall everywhere: several threads need it.
BENCHMARK(Render)->Name("threads")->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(RenderAmong)->Name("catalogue/one")->Arg(0)->Arg(100000)->UseRealTime();
BENCHMARK(RenderAnyOf)->Name("catalogue/any")->Arg(121)->Arg(100000)->UseRealTime();
BENCHMARK(RegisterMany<Order::kAscending>)
    ->Name("register/ascending")
    ->Arg(1000)
    ->Arg(100000)
    ->UseRealTime();
BENCHMARK(RegisterMany<Order::kShuffled>)
    ->Name("register/shuffled")
    ->Arg(1000)
    ->Arg(100000)
    ->UseRealTime();

}  // namespace
