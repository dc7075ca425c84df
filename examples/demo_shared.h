/// What the client and the agent of the demo agree on.
#ifndef EXAMPLES_DEMO_SHARED_H_
#define EXAMPLES_DEMO_SHARED_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "VMetrics.h"

namespace demo {

/// The agent finds its end of the connection here. One packet is one message: the header of a
/// VMessage does not tell how long the message is, so the connection has to keep them apart.
constexpr int kConnection = 3;
constexpr std::size_t kLongestMessage = 4096;

constexpr std::int32_t kClientModule = 0x120B;
constexpr std::int32_t kAgentModule = 0x120A;
constexpr std::int32_t kMetricsMessage = 17;

/// A metric that is not built in. Whoever renders it has to know its definition as well as the one
/// who sends it.
constexpr std::uint32_t kEncoderQueue = 302645266;  // 0x120A0012
constexpr char kEncoderQueueDefinition[] = "302645266;int;displayEncoderQueue;0";

constexpr char kTransaction[] = "demo-connection";
constexpr char kTraceEvent[] = "DEMO_CONNECT";
/// Asks for the span that ended last, in whatever process, as the parent of the next.
constexpr char kParentFromSpanFile[] = "ParentSpanId";
constexpr int kStepStarts = 0;
constexpr int kStepEnds = 1;

/// Whether everything went as expected. What fails is named on standard error and does not stop
/// the program: telling how one is doing is never a reason to end.
inline bool allWell = true;

inline void Expect(bool done, const char* what) {
  if (!done) {
    std::fprintf(stderr, "demo: failed: %s\n", what);
    allWell = false;
  }
}

inline void ExpectOk(int status, const char* what) { Expect(status == VMETRICS_OK, what); }

/// Registers a definition, which the library cuts up in place: it needs a copy that may be written.
/// The size is that of a literal, so a definition cannot be longer than its copy.
template <std::size_t size>
int Register(int (*registration)(char*), const char (&definition)[size]) {
  char copy[size];
  std::snprintf(copy, size, "%s", definition);
  return registration(copy);
}

/// Runs `work`, which returns 0 or an error code, as a step of the demo's transaction.
template <typename Work>
void Trace(const char* step, Work work) {
  const auto report = [step](int status, int error) {
    const int result =
        VMetrics::InsertRecord(status, kTransaction, kTraceEvent, step, kParentFromSpanFile, error);
    Expect(result == VMETRICS_OK, step);
  };
  report(kStepStarts, 0);
  const int error = work();
  report(kStepEnds, error);
}

}  // namespace demo

#endif  // EXAMPLES_DEMO_SHARED_H_
