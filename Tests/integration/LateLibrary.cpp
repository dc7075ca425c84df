// A library that a host loads while it runs, and that calls everything whenever it is run itself:
// when it is asked to, in an exit handler and in a destructor.

#include <cstdlib>

#include "ProbeCalls.h"

namespace {

struct Caller {
  Caller() {
    std::atexit([] { CallEverything("late exit handler"); });
  }
  ~Caller() { CallEverything("late destructor"); }
};

const Caller caller;

}  // namespace

extern "C" void CallFromLateLibrary() { CallEverything("late"); }
