/// What the pieces of the faked platform share.
#ifndef FAKEPLATFORMSTATE_H_
#define FAKEPLATFORMSTATE_H_

#include <climits>
#include <map>
#include <mutex>
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

/// The state, for the thread alone that has made the object and as long as that lives.
class LockedState {
 public:
  LockedState();

  State* operator->() const { return &state_; }
  State& operator*() const { return state_; }

 private:
  State& state_;
  std::lock_guard<std::mutex> lock_;
};

/// Counts down to a failure; true when it has come.
bool IsNext(int& untilFailure);

}  // namespace FakePlatform

#endif  // FAKEPLATFORMSTATE_H_
