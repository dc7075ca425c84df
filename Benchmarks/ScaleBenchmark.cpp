// What more threads and a larger catalogue change.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <vector>

#include "Records.h"

namespace {

constexpr int kFirstId = 0x40000000;

using Definition = std::vector<char>;

std::vector<Definition> MakeDefinitions(int count) {
  std::vector<Definition> definitions;
  for (int i = 0; i < count; ++i) {
    char text[64];
    const int length = std::snprintf(text, sizeof text, "%d;int;metric%d;0", kFirstId + i, i);
    definitions.emplace_back(text, text + length + 1);
  }
  return definitions;
}

void Register(std::vector<Definition>& definitions) {
  for (Definition& definition : definitions) {
    VMetrics::RegisterMetricsDataType(definition.data());
  }
}

void Unregister() {
  MetricsMap& catalogue = VMetrics::GetMetricsMap();
  catalogue.erase(catalogue.lower_bound(kFirstId), catalogue.end());
}

void Render(benchmark::State& state) {
  for (auto iteration : state) {
    benchmark::DoNotOptimize(VMetrics::GetBaseMetricsString(NumericRecord()));
  }
  state.SetItemsProcessed(state.iterations());
}

void RenderAmong(benchmark::State& state) {
  std::vector<Definition> definitions = MakeDefinitions(static_cast<int>(state.range(0)));
  Register(definitions);
  Render(state);
  Unregister();
}

/// The time for one entry, while `range(0)` of them are registered. Each time on memory that the
/// system hands out anew, as in a host that starts: a few entries would otherwise get what the last
/// ones left, and many would not.
void RegisterMany(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  for (auto iteration : state) {
    state.PauseTiming();
    std::vector<Definition> definitions = MakeDefinitions(count);
    malloc_trim(0);
    state.ResumeTiming();
    Register(definitions);
    state.PauseTiming();
    Unregister();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * count);
}

BENCHMARK(Render)->Name("threads")->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(RenderAmong)->Name("catalogue")->Arg(0)->Arg(100000);
BENCHMARK(RegisterMany)->Name("register")->Arg(1000)->Arg(100000);

}  // namespace
