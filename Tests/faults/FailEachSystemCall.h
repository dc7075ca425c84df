/// Faults of the machine at every point at which a call asks something of the system.
#ifndef FAILEACHSYSTEMCALL_H_
#define FAILEACHSYSTEMCALL_H_

#include <gtest/gtest.h>
#include <pthread.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

#include "DescriptorTable.h"
#include "SystemCalls.h"

/// How many calls were made to fail, and in how many runs: printed when the program ends.
struct FaultTally {
  long failed = 0;
  long runs = 0;
};
inline FaultTally faultTally;

/// The longest that a call of the library may keep its caller waiting, on the scripted clock: a
/// lock, a line and a diagnostic each have a tenth of a second, and a step's end has two locks.
constexpr long kPatienceMilliseconds = 300;

/// So long that a channel looks at its file.
constexpr long kLookMilliseconds = 500;

/// The fault of one run.
struct Attack {
  SystemCall call;
  Fault fault;
  SystemCallFailure::Extent extent;
  int first;

  /// Whether nobody should notice: a call that was interrupted, or moved something, can be made
  /// again.
  bool Passes() const {
    const bool partial = fault.error == 0 && fault.part(1) > 0;
    return extent == SystemCallFailure::Extent::kOnce && SystemCalls::IsRepeatable(call) &&
           (fault.error == EINTR || partial);
  }

  std::string Name() const {
    return std::string(SystemCalls::NameOf(call)) + " " + std::to_string(first) + ", " +
           fault.name + (extent == SystemCallFailure::Extent::kOnce ? ", once" : ", from there on");
  }
};

/// Whether the signals that writing can raise reach this thread, as they did before the tests.
inline bool SignalsReachUs() {
  sigset_t blocked;
  pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
  return sigismember(&blocked, SIGPIPE) == 0 && sigismember(&blocked, SIGXFSZ) == 0;
}

/// One run: `prepare`, `act` with the fault, `check`. Returns how many calls failed.
template <typename Prepare, typename Act, typename Check>
int RunWithFault(const Attack& attack, long patience, Prepare prepare, Act act, Check check) {
  SCOPED_TRACE(attack.Name());
  const long descriptors = DescriptorTable::Count();
  prepare();
  const long begin = SystemCalls::Milliseconds();
  int hits = 0;
  {
    const SystemCallFailure failure(attack.call, attack.fault, attack.first, attack.extent);
    act();
    hits = failure.Hits();
  }
  EXPECT_LE(SystemCalls::Milliseconds() - begin, patience);
  EXPECT_TRUE(SignalsReachUs());
  check(attack);
  EXPECT_EQ(DescriptorTable::Count(), descriptors);
  faultTally.failed += hits;
  ++faultTally.runs;
  return hits;
}

/// The next call to fail after number `first`. Of what is asked over and over, as a lock is that
/// somebody keeps, the first times are each of interest, and later ones now and then.
constexpr int NextToFail(int first) { return first < 12 ? first + 1 : first * 2; }

/// Makes `act` once for each call of the system, each fault of it, once and from there on, until a
/// run meets none. Before each run `prepare` is called, after it `check` with the fault, on a
/// machine that is well again. Descriptors, the signal mask and the time taken are looked at here.
///
/// Returns the names of the calls that failed: one that is not made tests nothing.
template <typename Prepare, typename Act, typename Check>
std::vector<std::string> FailEachSystemCall(Prepare prepare, Act act, Check check,
                                            long patience = kPatienceMilliseconds) {
  using Extent = SystemCallFailure::Extent;
  std::vector<std::string> met;
  for (const SystemCall call : SystemCalls::All()) {
    bool failed = false;
    for (const Fault& fault : SystemCalls::FaultsOf(call)) {
      for (const Extent extent : {Extent::kOnce, Extent::kFromThereOn}) {
        int hits = 1;
        for (int first = 1; hits > 0; first = NextToFail(first)) {
          hits = RunWithFault({call, fault, extent, first}, patience, prepare, act, check);
          failed = failed || hits > 0;
          if (testing::Test::HasFailure()) {
            return met;  // One fault tells more than a thousand of the same kind.
          }
        }
      }
    }
    if (failed) {
      met.emplace_back(SystemCalls::NameOf(call));
    }
  }
  return met;
}

/// Makes `call`, which must leave the host's errno as it was.
template <typename Call>
auto KeepingErrno(Call call) {
  struct Keeper {
    Keeper() { errno = EDOM; }
    ~Keeper() { EXPECT_EQ(errno, EDOM); }
  } keeper;
  return call();
}

#endif  // FAILEACHSYSTEMCALL_H_
