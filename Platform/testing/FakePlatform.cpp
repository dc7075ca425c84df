#include "FakePlatform.h"

#include <utility>

#include "FakePlatformState.h"

namespace FakePlatform {

State& TheState() {
  static State& state = *new State;
  return state;
}

bool IsNext(int& untilFailure) { return untilFailure > 0 && --untilFailure == 0; }

void Reset() { TheState() = State(); }

const std::vector<LogLine>& LogLines() { return TheState().logLines; }

const std::vector<MetricsLine>& MetricsLines() { return TheState().metricsLines; }

const std::vector<std::string>& FileOperations() { return TheState().fileOperations; }

int TicksRead() { return TheState().ticksRead; }

void ScriptTicks(std::vector<unsigned long> ticks) {
  TheState().ticks = std::move(ticks);
  TheState().ticksRead = 0;
}

std::map<std::string, std::string>& Files() { return TheState().files; }

void RefuseLocks(int first, int last) {
  TheState().locks = 0;
  TheState().firstRefusedLock = first;
  TheState().lastRefusedLock = last;
}

void RefuseAllLocks() { RefuseLocks(1, INT_MAX); }

void LimitWrites(int bytes) { TheState().writeLimit = bytes; }

void FailCopy(int number) { TheState().copiesUntilFailure = number; }

void FailClear(int number) { TheState().clearsUntilFailure = number; }

}  // namespace FakePlatform
