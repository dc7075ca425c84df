/// A command that runs in place of this process, as far as others can tell.
#ifndef VMETRICS_TOOL_COMMANDWATCH_H_
#define VMETRICS_TOOL_COMMANDWATCH_H_

#include <sys/types.h>

#include <csignal>

#include "HeldSignals.h"

namespace vmetrics {

/// Whether the terminal, or the system on its behalf, sends a signal like this to all processes of
/// a group alike. To the leader of a session it tells the terminal's end alone.
bool IsForWholeGroup(const siginfo_t& signal, bool leadsSession);

/// Waits for a child and passes on to it what is sent to this process.
class CommandWatch {
 public:
  /// `signals` must have been held since before the child was there.
  CommandWatch(pid_t command, const HeldSignals& signals) : command_(command), signals_(signals) {}

  /// Returns the child's wait status. No other child is waited for.
  int WaitForEnd();

 private:
  enum class State { kRunning, kStopped, kContinuedByOthers, kEnded };

  void Take(const siginfo_t& signal);
  bool Look();
  void StopToo(int signal);
  void PassOn(const siginfo_t& signal);
  void PassOnContinuing(const siginfo_t& signal);
  bool LeftOurGroup() const;
  void SendToGroup(int signal) const;

  const pid_t command_;
  const HeldSignals& signals_;
  State state_ = State::kRunning;
  int waitStatus_ = 0;  ///< As last told by the system.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_COMMANDWATCH_H_
