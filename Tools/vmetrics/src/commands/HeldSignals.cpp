#include "HeldSignals.h"

namespace vmetrics {

namespace {

struct sigaction DefaultAction() {
  struct sigaction action = {};
  action.sa_handler = SIG_DFL;
  return action;
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

bool HeldSignals::IsPending(int signal) const {
  sigset_t pending;
  return sigpending(&pending) == 0 && sigismember(&pending, signal) == 1;
}

void HeldSignals::Obey(int signal) const {
  const struct sigaction obeyed = DefaultAction();
  struct sigaction before = {};
  sigaction(signal, &obeyed, &before);
  sigset_t let;
  sigemptyset(&let);
  sigaddset(&let, signal);
  raise(signal);
  pthread_sigmask(SIG_UNBLOCK, &let, nullptr);
  pthread_sigmask(SIG_BLOCK, &let, nullptr);
  sigaction(signal, &before, nullptr);
}

void HeldSignals::Release() const {
  sigaction(SIGCHLD, &childEndsBefore_, nullptr);
  pthread_sigmask(SIG_SETMASK, &maskBefore_, nullptr);
}

}  // namespace vmetrics
