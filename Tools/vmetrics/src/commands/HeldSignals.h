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

  /// Stops this process by the signal, until it is continued. Returns at once where SIGCONT waits
  /// to be taken, or where the system lets nobody be stopped whom nobody would continue.
  void Stop(int signal) const;

  /// Ends this process by the signal. Returns where the system does not let it be ended.
  void End(int signal) const;

  /// Makes everything as it was. For a new process, before it becomes another program.
  void Release() const;

 private:
  sigset_t maskBefore_;
  struct sigaction childEndsBefore_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_HELDSIGNALS_H_
