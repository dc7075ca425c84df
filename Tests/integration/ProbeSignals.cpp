#include "ProbeSignals.h"

#include <sys/time.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <string>

#include "NumberedLines.h"
#include "ProbeCalls.h"
#include "VLogger.h"

namespace {

using Clock = std::chrono::steady_clock;

volatile std::sig_atomic_t signalsSoFar = 0;

/// Calls `call` and makes `longest` what it took, if that is longer.
template <typename Call>
void Measure(Clock::duration& longest, Call call) {
  const Clock::time_point start = Clock::now();
  call();
  longest = std::max(longest, Clock::now() - start);
}

}  // namespace

void RaiseSignals() {
  struct sigaction action = {};
  action.sa_handler = [](int) { signalsSoFar = signalsSoFar + 1; };
  action.sa_flags = 0;  // Above all not SA_RESTART.
  sigaction(SIGALRM, &action, nullptr);
  const itimerval each = {{0, 1000}, {0, 1000}};
  setitimer(ITIMER_REAL, &each, nullptr);
}

void WorkUnderSignals(int process, int signals, int longest) {
  const int last = signalsSoFar + signals;
  Clock::duration longestCall{0};
  int number = 0;
  int failed = 0;
  for (; signalsSoFar < last; ++number) {
    const std::string line = NumberedLine(process, number, NumberedLineLength(number, longest));
    Measure(longestCall, [&] { VLogger::GetInstance().Metrics("%s", line.c_str()); });
    Measure(longestCall, [&] { failed += TraceStep("signals", "s") ? 0 : 1; });
  }
  setitimer(ITIMER_REAL, nullptr, nullptr);  // The rest is the probe's own.
  using std::chrono::milliseconds;
  Say("lines", std::to_string(number));
  Say("failed", std::to_string(failed));
  Say("longest", std::to_string(std::chrono::duration_cast<milliseconds>(longestCall).count()));
}
