/// Real processes that load the library: the program "probe", driven by its arguments.
#ifndef PROBEPROCESS_H_
#define PROBEPROCESS_H_

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ostream>
#include <string>
#include <vector>

#include "BoundedWait.h"
#include "LinesOf.h"
#include "TemporaryDirectory.h"

/// What became of a probe.
struct ProbeResult {
  int status = kDidNotEnd;  ///< The exit code, or minus the signal that ended it.
  std::string output;       ///< Standard output, unless it went elsewhere.
  std::string diagnostics;  ///< Standard error, unless it went elsewhere.

  /// What the probe said as "name=value", each time.
  std::vector<std::string> Values(const std::string& name) const {
    std::vector<std::string> values;
    for (const std::string& line : LinesOf(output)) {
      if (line.rfind(name + "=", 0) == 0) {
        values.push_back(line.substr(name.size() + 1));
      }
    }
    return values;
  }

  /// The lines of the metrics channel where that is standard output.
  std::string Metrics() const {
    std::string metrics;
    for (const std::string& line : LinesOf(output)) {
      metrics += line.rfind('{', 0) == 0 ? line + "\n" : "";
    }
    return metrics;
  }
};

inline void PrintTo(const ProbeResult& result, std::ostream* out) {
  *out << "probe's status " << result.status << ", output:\n"
       << result.output << "\ndiagnostics:\n"
       << result.diagnostics;
}

/// Whether the probe came to its end, and without complaint of a sanitizer.
inline testing::AssertionResult Succeeded(const ProbeResult& result) {
  return result.status == 0 ? testing::AssertionSuccess()
                            : testing::AssertionFailure() << testing::PrintToString(result);
}

/// A probe that runs while the object lives. Nothing is left behind: one that does not end in time
/// is killed.
class ProbeProcess {
 public:
  /// Starts it in `directory`, so that its span file lies there. Its standard output is kept, or
  /// goes to `output`; its standard error likewise to `diagnostics`. It waits in the command "gate"
  /// for Go.
  ProbeProcess(const TemporaryDirectory& directory, const std::vector<std::string>& commands,
               int output = -1, int diagnostics = -1)
      : output_(Memory()), diagnostics_(Memory()) {
    int gate[2];
    EXPECT_EQ(pipe2(gate, O_CLOEXEC), 0);
    gate_ = gate[1];
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, directory.Path().c_str());
    posix_spawn_file_actions_adddup2(&actions, gate[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output < 0 ? output_ : output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, diagnostics < 0 ? diagnostics_ : diagnostics,
                                     STDERR_FILENO);
    std::vector<char*> arguments{const_cast<char*>(VMETRICS_PROBE)};
    for (const std::string& command : commands) {
      arguments.push_back(const_cast<char*>(command.c_str()));
    }
    arguments.push_back(nullptr);
    EXPECT_EQ(posix_spawn(&process_, VMETRICS_PROBE, &actions, nullptr, arguments.data(), environ),
              0);
    posix_spawn_file_actions_destroy(&actions);
    close(gate[0]);
  }
  ~ProbeProcess() {
    Wait();
    close(output_);
    close(diagnostics_);
  }
  ProbeProcess(const ProbeProcess&) = delete;
  ProbeProcess& operator=(const ProbeProcess&) = delete;

  /// Opens the gate.
  void Go() {
    if (gate_ >= 0) {
      close(gate_);
      gate_ = -1;
    }
  }

  /// Opens the gate and waits for the end, for two minutes at most.
  ProbeResult Wait() {
    Go();
    if (process_ > 0) {
      result_.status = WaitFor(process_, 120'000);
      result_.output = Content(output_);
      result_.diagnostics = Content(diagnostics_);
      process_ = -1;
    }
    return result_;
  }

 private:
  /// A file without a name. Appended to, as the threads of a probe write at the same time.
  static int Memory() {
    const int descriptor = memfd_create("probe", MFD_CLOEXEC);
    fcntl(descriptor, F_SETFL, O_APPEND);
    return descriptor;
  }

  static std::string Content(int descriptor) {
    struct stat status = {};
    fstat(descriptor, &status);
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    EXPECT_EQ(pread(descriptor, text.data(), text.size(), 0), status.st_size);
    return text;
  }

  int output_;
  int diagnostics_;
  int gate_ = -1;
  pid_t process_ = -1;
  ProbeResult result_;
};

/// Runs a probe from beginning to end.
inline ProbeResult RunProbe(const TemporaryDirectory& directory,
                            const std::vector<std::string>& commands) {
  return ProbeProcess(directory, commands).Wait();
}

#endif  // PROBEPROCESS_H_
