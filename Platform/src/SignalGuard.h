/// Keeps the signals that a write may raise away from the host.
#ifndef PLATFORM_SIGNALGUARD_H_
#define PLATFORM_SIGNALGUARD_H_

#include <csignal>

/// While a guard lives, SIGPIPE and SIGXFSZ that this thread's own writes raise stay pending.
class SignalGuard {
 public:
  SignalGuard();
  /// Puts the host's signal mask back.
  ~SignalGuard();
  SignalGuard(const SignalGuard&) = delete;
  SignalGuard& operator=(const SignalGuard&) = delete;

  /// To be called after a write that failed: takes away the signal that it raised. One that was
  /// pending before the guard was made is the host's and stays.
  void Discard();

 private:
  sigset_t ours_;  ///< The signals that, if pending, our own writes raised.
  sigset_t hostMask_;
};

/// Whether writing to a file may raise SIGXFSZ.
bool HasFileSizeLimit();

#endif  // PLATFORM_SIGNALGUARD_H_
