/// A command started as another program would have started it.
#ifndef VMETRICS_TOOL_STARTEDCOMMAND_H_
#define VMETRICS_TOOL_STARTEDCOMMAND_H_

#include <sys/types.h>

#include "HeldSignals.h"

namespace vmetrics {

/// Takes the places of standard streams that are closed, lest another file comes to stand there. A
/// command that is started later still finds them closed.
void OccupyStandardStreams();

/// A child process that becomes the command, with the descriptors, signals and process group that
/// this process was started with.
class StartedCommand {
 public:
  /// `command`: its name and arguments, then null. Throws std::system_error where there can be no
  /// child.
  StartedCommand(char** command, const HeldSignals& signals);
  ~StartedCommand();
  StartedCommand(const StartedCommand&) = delete;
  StartedCommand& operator=(const StartedCommand&) = delete;

  pid_t Id() const { return id_; }

  /// After its end: the error number for which it could not become the command, 0 where it could.
  int StartError() const;

 private:
  int report_;  ///< The end to read of a pipe that is closed, empty, when the command begins.
  pid_t id_;
};

/// Lets go of whatever this process was started with but standard error, for the command alone has
/// it now: whoever is at the other end must see it closed when the command closes it. Standard
/// output stays where `keepsOutput`, otherwise it goes to standard error.
void LeaveDescriptorsToCommand(bool keepsOutput);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STARTEDCOMMAND_H_
