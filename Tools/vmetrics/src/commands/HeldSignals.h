/// Signals taken one by one instead of being obeyed.
#ifndef VMETRICS_TOOL_HELDSIGNALS_H_
#define VMETRICS_TOOL_HELDSIGNALS_H_

#include <csignal>

namespace vmetrics {

/// From its making on no signal that can be held back does anything to this process: each waits
/// until it is taken, also one that would be ignored.
class HeldSignals {
 public:
  HeldSignals();

  /// Waits for a signal and takes it.
  siginfo_t Take() const;

  bool IsPending(int signal) const;

  /// Lets the signal do to this process what it does to any, now. Returns where the process goes
  /// on: it was stopped and continued, or the system did not let it be stopped or ended.
  void Obey(int signal) const;

  /// Makes everything as it was. For a new process, before it becomes another program.
  void Release() const;

 private:
  sigset_t maskBefore_;
  struct sigaction childEndsBefore_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_HELDSIGNALS_H_
