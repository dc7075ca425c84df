#include "FakePlatform.h"

#include <utility>

#include "FakePlatformState.h"

namespace FakePlatform {

namespace {

/// Never destroyed: the last log line of a process comes while it exits.
State& TheState() {
  static State& state = *new State;
  return state;
}

std::mutex& TheMutex() {
  static std::mutex& mutex = *new std::mutex;
  return mutex;
}

}  // namespace

LockedState::LockedState() : state_(TheState()), lock_(TheMutex()) {}

bool IsNext(int& untilFailure) { return untilFailure > 0 && --untilFailure == 0; }

void Reset() { *LockedState() = State(); }

const std::vector<LogLine>& LogLines() { return LockedState()->logLines; }

const std::vector<MetricsLine>& MetricsLines() { return LockedState()->metricsLines; }

const std::vector<std::string>& FileOperations() { return LockedState()->fileOperations; }

int TicksRead() { return LockedState()->ticksRead; }

void ScriptTicks(std::vector<unsigned long> ticks) {
  const LockedState state;
  state->ticks = std::move(ticks);
  state->ticksRead = 0;
}

std::map<std::string, std::string>& Files() { return LockedState()->files; }

void RefuseLocks(int first, int last) {
  const LockedState state;
  state->locks = 0;
  state->firstRefusedLock = first;
  state->lastRefusedLock = last;
}

void RefuseAllLocks() { RefuseLocks(1, INT_MAX); }

void LimitWrites(int bytes) { LockedState()->writeLimit = bytes; }

void FailCopy(int number) { LockedState()->copiesUntilFailure = number; }

void FailClear(int number) { LockedState()->clearsUntilFailure = number; }

}  // namespace FakePlatform
