// Ends of steps from several processes at once, on one span file and one file of lines.

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "LineFiles.h"
#include "LinesOf.h"
#include "SpanIdentifierForm.h"
#include "Steps.h"

namespace {

constexpr int kSteps = 4000;

/// Starts a process that takes `steps` steps; false when there can be none.
bool StartProcess(int steps) {
  const pid_t id = fork();
  if (id == 0) {
    bool taken = true;
    for (int step = 0; step < steps; ++step) {
      taken = StepOurs() && taken;
    }
    _exit(taken ? 0 : 1);
  }
  return id > 0;
}

/// Takes kSteps steps in `processes` processes; false when one of them did not take its share.
bool TakeSteps(int processes) {
  bool taken = true;
  for (int process = 0; process < processes; ++process) {
    taken = StartProcess(kSteps / processes) && taken;
  }
  for (int status = 0; wait(&status) > 0;) {
    taken = taken && status == 0;
  }
  return taken;
}

/// The text of a member of a line; empty where there is none.
std::string Member(const std::string& line, const std::string& key) {
  const std::string head = "\"" + key + "\":\"";
  const std::size_t at = line.find(head);
  const std::size_t begin = at + head.size();
  return at == std::string::npos ? "" : line.substr(begin, line.find('"', begin) - begin);
}

/// What is wrong with the lines of kSteps steps; null when nothing is. `oldest` is the identifier
/// that was in the span file before them.
const char* WhatIsWrong(const std::vector<std::string>& lines, const std::string& oldest) {
  if (lines.size() != kSteps) {
    return "not one line a step";
  }
  std::set<std::string> identifiers = {oldest};
  for (const std::string& line : lines) {
    const std::string identifier = Member(line, "spanId");
    if (!IsSpanIdentifier(identifier) || line.back() != '}') {
      return "a torn line";
    }
    identifiers.insert(identifier);
  }
  for (const std::string& line : lines) {
    if (identifiers.count(Member(line, "parentSpanId")) == 0) {
      return "a parent that is no step's: a torn identifier, or a lock was refused";
    }
  }
  return nullptr;
}

/// `range(0)` processes that share kSteps steps between them; the time is that of all of them.
void RunProcesses(benchmark::State& state) {
  for (auto iteration : state) {
    bool taken = PrepareSteps();
    const std::string oldest = VMetrics::GetCurrentParentSpanId();
    const std::string lines = Appended(kOurLines, [&] {
      const auto start = std::chrono::steady_clock::now();
      taken = taken && TakeSteps(static_cast<int>(state.range(0)));
      const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
      state.SetIterationTime(time.count());
    });
    if (!taken) {
      state.SkipWithError("a process did not take its steps");
      break;
    }
    if (const char* const wrong = WhatIsWrong(LinesOf(lines), oldest)) {
      state.SkipWithError(wrong);
      break;
    }
  }
}

BENCHMARK(RunProcesses)->Name("processes")->Arg(1)->Arg(4)->UseManualTime();

}  // namespace
