#include "CommandWatch.h"

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "Terminal.h"

namespace vmetrics {

namespace {

/// Whether a process has sent it, which is then named as its sender.
bool HasSender(const siginfo_t& signal) {
  return signal.si_code == SI_USER || signal.si_code == SI_QUEUE || signal.si_code == SI_TKILL;
}

bool IsStopping(int signal) { return signal == SIGTSTP || signal == SIGTTIN || signal == SIGTTOU; }

/// Whether somebody with job control waits for our group to stop, and will continue it.
bool HasJobControl() {
  const pid_t parent = getppid();
  return getsid(parent) == getsid(0) && getpgid(parent) != getpgrp();
}

void ComplainOfSignal(int signal) {
  Complain(fmt::format("signal {} cannot be passed on to the command: {}", signal,
                       std::generic_category().message(errno)));
}

}  // namespace

bool IsForWholeGroup(const siginfo_t& signal, bool leadsSession) {
  if (signal.si_code != SI_KERNEL) {
    return false;
  }
  switch (signal.si_signo) {
    case SIGINT:
    case SIGQUIT:
    case SIGTSTP:
    case SIGTTIN:
    case SIGTTOU:
    case SIGWINCH:
      return true;
    case SIGHUP:
    case SIGCONT:
      return !leadsSession;
    default:
      return false;  // An alarm that was set before this program began, say.
  }
}

int CommandWatch::WaitForEnd() {
  while (state_ != State::kEnded) {
    Take(signals_.Take());
  }
  return waitStatus_;
}

void CommandWatch::Take(const siginfo_t& signal) {
  // Whatever it is: signals of one number that come together are told as one.
  const bool isStoppedNow = Look();
  if (isStoppedNow && signal.si_signo != SIGCONT) {
    StopToo(WSTOPSIG(waitStatus_));
  }
  if (state_ == State::kEnded || (signal.si_signo == SIGCHLD && signal.si_code > 0)) {
    return;
  }
  if (HasSender(signal) && signal.si_pid == command_) {
    return;  // The command has signalled a group, or its parent: never meant for itself once more.
  }
  if (signal.si_signo == SIGCONT) {
    PassOnContinuing(signal);
  } else if (state_ != State::kStopped || !IsStopping(signal.si_signo)) {
    PassOn(signal);
  }
}

/// Sees what has become of the command. True when it was stopped, and stands still.
bool CommandWatch::Look() {
  bool isStoppedNow = false;
  while (waitpid(command_, &waitStatus_, WNOHANG | WUNTRACED | WCONTINUED) == command_) {
    isStoppedNow = WIFSTOPPED(waitStatus_);
    if (isStoppedNow) {
      state_ = State::kStopped;
    } else if (!WIFCONTINUED(waitStatus_)) {
      state_ = State::kEnded;
      return false;
    } else if (state_ == State::kStopped) {
      state_ = State::kContinuedByOthers;
    }
  }
  return isStoppedNow;
}

/// Stops as the command was stopped, where somebody would continue us. With the terminal's signals
/// the system sees to that itself; with SIGSTOP it is up to us.
void CommandWatch::StopToo(int signal) {
  if (signal != SIGSTOP || HasJobControl()) {
    signals_.Stop(signal);
  }
}

/// To continue is to be passed on to a command that stands still, or that has not been continued
/// itself: a shell continues the whole group.
void CommandWatch::PassOnContinuing(const siginfo_t& signal) {
  const State before = state_;
  state_ = State::kRunning;
  if (before == State::kStopped) {
    SendToGroup(SIGCONT);
  } else if (before == State::kRunning) {
    PassOn(signal);
  }
}

void CommandWatch::PassOn(const siginfo_t& signal) {
  if (IsForWholeGroup(signal, getsid(0) == getpid())) {
    if (LeftOurGroup()) {
      SendToGroup(signal.si_signo);
    }
    return;
  }
  const int failed = signal.si_code == SI_QUEUE
                         ? sigqueue(command_, signal.si_signo, signal.si_value)
                         : kill(command_, signal.si_signo);
  if (failed != 0) {
    ComplainOfSignal(signal.si_signo);
  }
}

bool CommandWatch::LeftOurGroup() const { return getpgid(command_) != getpgrp(); }

/// Signals the command as a terminal would that it stood in front of: with the group that it leads.
void CommandWatch::SendToGroup(int signal) const {
  const bool leads = LeftOurGroup() && getpgid(command_) == command_;
  if (kill(leads ? -command_ : command_, signal) != 0) {
    ComplainOfSignal(signal);
  }
}

}  // namespace vmetrics
