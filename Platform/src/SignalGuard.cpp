#include "SignalGuard.h"

#include <pthread.h>
#include <sys/resource.h>

#include <ctime>
#include <initializer_list>

#include "ErrnoKeeper.h"

SignalGuard::SignalGuard() {
  sigemptyset(&ours_);
  sigaddset(&ours_, SIGPIPE);
  sigaddset(&ours_, SIGXFSZ);
  pthread_sigmask(SIG_BLOCK, &ours_, &hostMask_);
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    sigset_t pending;
    // Only a signal that the host blocks itself can have been pending before.
    if (sigismember(&hostMask_, signal) == 1 && sigpending(&pending) == 0 &&
        sigismember(&pending, signal) == 1) {
      sigdelset(&ours_, signal);
    }
  }
}

SignalGuard::~SignalGuard() {
  const ErrnoKeeper keeper;
  pthread_sigmask(SIG_SETMASK, &hostMask_, nullptr);
}

void SignalGuard::Discard() {
  const ErrnoKeeper keeper;
  const timespec noWait = {0, 0};
  while (sigtimedwait(&ours_, nullptr, &noWait) > 0) {
  }
}

bool HasFileSizeLimit() {
  rlimit limit;
  return getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
}
