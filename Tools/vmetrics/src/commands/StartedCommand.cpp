#include "StartedCommand.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

namespace vmetrics {

namespace {

constexpr const char* kNothing = "/dev/null";

[[noreturn]] void Become(char** command, const HeldSignals& signals, int report) {
  signals.Release();
  execvp(command[0], command);
  const int error = errno;
  const bool isReported = write(report, &error, sizeof error) == sizeof error;
  _exit(isReported ? EXIT_FAILURE : EXIT_SUCCESS);  // Which nobody looks at.
}

/// Descriptors but the standard streams that a program which is started inherits. Ours are not
/// among them.
std::vector<int> InheritedDescriptors() {
  std::vector<int> inherited;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", error)) {
    const int descriptor = std::atoi(entry.path().filename().c_str());
    const int flags = fcntl(descriptor, F_GETFD);
    if (descriptor > STDERR_FILENO && flags >= 0 && (flags & FD_CLOEXEC) == 0) {
      inherited.push_back(descriptor);
    }
  }
  return inherited;
}

}  // namespace

void OccupyStandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) < 0 && open(kNothing, O_RDWR | O_CLOEXEC) < 0) {
      throw std::system_error(errno, std::generic_category(), kNothing);
    }
  }
}

StartedCommand::StartedCommand(char** command, const HeldSignals& signals) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) {
    throw std::system_error(errno, std::generic_category(), "no pipe to the command");
  }
  report_ = ends[0];
  id_ = fork();
  if (id_ == 0) {
    Become(command, signals, ends[1]);
  }
  const int error = errno;
  close(ends[1]);
  if (id_ < 0) {
    close(report_);
    throw std::system_error(error, std::generic_category(), "no process for the command");
  }
}

StartedCommand::~StartedCommand() { close(report_); }

int StartedCommand::StartError() const {
  int error = 0;
  return read(report_, &error, sizeof error) == sizeof error ? error : 0;
}

void LeaveDescriptorsToCommand(bool keepsOutput) {
  for (const int descriptor : InheritedDescriptors()) {
    close(descriptor);
  }
  const int nothing = open(kNothing, O_RDWR | O_CLOEXEC);
  dup2(nothing, STDIN_FILENO);
  close(nothing);
  if (!keepsOutput) {
    dup2(STDERR_FILENO, STDOUT_FILENO);
  }
}

}  // namespace vmetrics
