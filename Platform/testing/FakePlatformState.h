/// What the pieces of the faked platform share.
#ifndef FAKEPLATFORMSTATE_H_
#define FAKEPLATFORMSTATE_H_

#include <climits>
#include <map>
#include <string>
#include <vector>

#include "FakePlatform.h"

namespace FakePlatform {

struct State {
  std::vector<LogLine> logLines;
  std::vector<MetricsLine> metricsLines;
  std::vector<std::string> fileOperations;

  std::vector<unsigned long> ticks{kFirstTick};
  int ticksRead = 0;

  std::map<std::string, std::string> files;
  int locks = 0;
  int firstRefusedLock = INT_MAX;
  int lastRefusedLock = INT_MAX;
  int writeLimit = INT_MAX;

  int copiesUntilFailure = 0;  ///< 0: none fails.
  int clearsUntilFailure = 0;
};

/// Never destroyed: the last log line of a process comes while it exits.
State& TheState();

/// Counts down to a failure; true when it has come.
bool IsNext(int& untilFailure);

}  // namespace FakePlatform

#endif  // FAKEPLATFORMSTATE_H_
