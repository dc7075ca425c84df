#include "HeldSignals.h"

#include <unistd.h>

namespace vmetrics {

namespace {

struct sigaction DefaultAction() {
  struct sigaction action = {};
  action.sa_handler = SIG_DFL;
  return action;
}

bool IsPending(int signal) {
  sigset_t pending;
  return sigpending(&pending) == 0 && sigismember(&pending, signal) == 1;
}

/// Lets a signal that waits do what it does, and holds it back again.
void LetThrough(int signal) {
  sigset_t let;
  sigemptyset(&let);
  sigaddset(&let, signal);
  pthread_sigmask(SIG_UNBLOCK, &let, nullptr);
  pthread_sigmask(SIG_BLOCK, &let, nullptr);
}

}  // namespace

HeldSignals::HeldSignals() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &maskBefore_);
  // Where the ends of children are ignored, nobody is told how they ended.
  const struct sigaction told = DefaultAction();
  sigaction(SIGCHLD, &told, &childEndsBefore_);
}

siginfo_t HeldSignals::Take() const {
  sigset_t all;
  sigfillset(&all);
  siginfo_t taken;
  while (sigwaitinfo(&all, &taken) < 0) {  // Interrupted where the process was stopped meanwhile.
  }
  return taken;
}

void HeldSignals::Stop(int signal) const {
  const struct sigaction obeyed = DefaultAction();
  struct sigaction before = {};
  sigaction(signal, &obeyed, &before);
  const pid_t self = getpid();
  // To be told to stop takes away a SIGCONT that waits, to be told to continue the stop that waits.
  // So we look for the one and then ask for the other with nothing in between.
  if (!IsPending(SIGCONT) && kill(self, signal) == 0) {
    LetThrough(signal);
  }
  sigaction(signal, &before, nullptr);
}

void HeldSignals::End(int signal) const {
  const struct sigaction obeyed = DefaultAction();
  sigaction(signal, &obeyed, nullptr);
  kill(getpid(), signal);
  LetThrough(signal);
}

void HeldSignals::Release() const {
  sigaction(SIGCHLD, &childEndsBefore_, nullptr);
  pthread_sigmask(SIG_SETMASK, &maskBefore_, nullptr);
}

}  // namespace vmetrics
