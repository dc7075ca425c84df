#include <fcntl.h>
#include <fmt/format.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "Command.h"
#include "CommandWatch.h"
#include "FileState.h"
#include "HeldSignals.h"
#include "HelpFormatter.h"
#include "StartedCommand.h"
#include "Text.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace vmetrics {

namespace {

constexpr const char* kDescription =
    "Runs a command as a step of a transaction: times it and writes a step record with its exit "
    "status as error code, to standard error unless a file is named. Neither the command's name "
    "nor its arguments are recorded.";
constexpr const char* kFooter =
    "Example:\n"
    "  vmetrics run --step backup --transaction nightly --metrics metrics.log -- tar cf b.tar "
    "data\n"
    "Exit status: the command's; 126 if it could not be run, 127 if it was not found, 128+N if\n"
    "signal N ended it, 125 for a failure of vmetrics itself.";

/// What the library takes for: from the span file.
const std::string kParentFromFile = "ParentSpanId";
constexpr const char* kStandardOutput = "-";
constexpr int kWarnings = 2;
constexpr std::size_t kIdentifierSize = 36;

enum StepStatus : int { kStarts = 0, kEnds = 1 };

// Exit statuses as shells have them.
enum CommandStatus : int { kCannotRun = 126, kNotFound = 127, kSignalled = 128 };

struct StepOptions {
  std::string name;
  std::optional<std::string> transactionId;
  std::string eventId = "vmetrics_run";
  std::string parentId;
  bool isParentFromFile = false;
  std::optional<std::string> metricsFile;
  std::string spanDirectory;
};

/// The command is no option, as the parser must not touch it, but has to be there.
class RunFormatter : public HelpFormatter {
 public:
  // NOLINTNEXTLINE(readability-identifier-naming): the name of the base class.
  std::string make_usage(const CLI::App* /*app*/, std::string /*name*/) const override {
    return "Usage: vmetrics run [OPTIONS] --step NAME -- COMMAND [ARGUMENT...]\n";
  }
};

/// How a command came to its end.
struct Ending {
  int exitStatus;
  int signal;  ///< Which ended it, 0 where none did.
};

std::string ReasonOfRefusal(int error) {
  switch (error) {
    case EINVAL:
    case ENXIO:
      return "Not a regular file";
    case ELOOP:
      return "A symbolic link, which is not followed";
    default:
      return std::generic_category().message(error);
  }
}

void Check(const StepOptions& options, char** command) {
  if (command == nullptr || *command == nullptr) {
    throw UsageError("there is no command; it stands behind --");
  }
  if (options.name.empty()) {
    throw UsageError("--step: the name is empty");
  }
  if (options.transactionId == std::string()) {
    throw UsageError("--transaction: the identifier is empty");
  }
}

void CheckStandardOutput(const StepOptions& options) {
  if (options.metricsFile == kStandardOutput && fcntl(STDOUT_FILENO, F_GETFD) < 0) {
    throw std::runtime_error(fmt::format("standard output: {}; the command was not run",
                                         std::generic_category().message(errno)));
  }
}

void Configure(const StepOptions& options) {
  VPlatformConfig::SetDiagnosticsLevel(kWarnings);
  if (!VPlatformConfig::SetLockFileDirectory(options.spanDirectory)) {
    throw UsageError("--span-directory: the name is too long");
  }
  if (options.metricsFile && options.metricsFile != kStandardOutput &&
      !VPlatformConfig::SetMetricsFile(*options.metricsFile)) {
    const std::string reason = ReasonOfRefusal(errno);
    throw std::runtime_error(fmt::format("{}: {}; the command was not run",
                                         PrintableName(*options.metricsFile), reason));
  }
}

class RunningStep {
 public:
  explicit RunningStep(const StepOptions& options)
      : options_(options),
        transactionId_(options.transactionId ? *options.transactionId : VMetrics::GenerateUuid()),
        spanFile_(options.spanDirectory.empty() ? "spanId" : options.spanDirectory + "/spanId") {}

  void Start() const {
    if (Insert(kStarts, 0) != VMETRICS_OK) {
      throw std::runtime_error("the step cannot be started; the command was not run");
    }
  }

  /// Nothing that goes wrong here is the command's failure: it is told, no more.
  void End(int errorCode) const try {
    const std::string spanBefore = BeginningOf(spanFile_);
    const std::optional<FileExtent> logBefore = MetricsFileExtent();
    if (Insert(kEnds, errorCode) != VMETRICS_OK) {
      Complain("the step is not recorded");
      return;
    }
    // Others who write there meanwhile may hide that we could not; but what is told is true.
    if (logBefore && MetricsFileExtent() == logBefore) {
      Complain(fmt::format("{}: cannot be written; the step is not recorded",
                           Printable(*options_.metricsFile)));
    }
    const std::string span = BeginningOf(spanFile_);
    if (span == spanBefore || span.size() < kIdentifierSize) {
      Complain(
          fmt::format("{}: cannot be locked or written; the steps that follow do not find "
                      "this one",
                      Printable(spanFile_)));
    }
  } catch (const std::exception& error) {
    Complain(fmt::format("the step is not recorded: {}", error.what()));
  }

 private:
  std::optional<FileExtent> MetricsFileExtent() const {
    const bool isFile = options_.metricsFile && options_.metricsFile != kStandardOutput;
    return isFile ? ExtentOf(*options_.metricsFile) : std::nullopt;
  }

  int Insert(StepStatus status, int errorCode) const {
    const std::string& parent = options_.isParentFromFile ? kParentFromFile : options_.parentId;
    return VMetrics::InsertRecord(status, transactionId_.c_str(), options_.eventId.c_str(),
                                  options_.name.c_str(), parent.c_str(), errorCode);
  }

  const StepOptions& options_;
  const std::string transactionId_;
  const std::string spanFile_;
};

Ending EndingOf(int waitStatus, int startError) {
  if (startError != 0) {
    return {startError == ENOENT ? kNotFound : kCannotRun, 0};
  }
  if (WIFSIGNALED(waitStatus)) {
    return {kSignalled + WTERMSIG(waitStatus), WTERMSIG(waitStatus)};
  }
  return {WEXITSTATUS(waitStatus), 0};
}

/// Ends as the command has ended, so that a shell's loop breaks off at Ctrl-C as ever. Returns only
/// in the first process of a container, which its own signals do not end.
void DieOf(int signal, const HeldSignals& signals) {
  prctl(PR_SET_DUMPABLE, 0);  // The core that tells something is the command's.
  signals.End(signal);
}

int RunStep(const StepOptions& options, char** command) {
  Check(options, command);
  CheckStandardOutput(options);
  OccupyStandardStreams();
  Configure(options);
  const RunningStep step(options);
  step.Start();
  const HeldSignals signals;
  const StartedCommand started(command, signals);
  LeaveDescriptorsToCommand(options.metricsFile == kStandardOutput);
  const int waitStatus = CommandWatch(started.Id(), signals).WaitForEnd();
  const int startError = started.StartError();
  if (startError != 0) {
    Complain(fmt::format("{}: {}", PrintableName(*command),
                         std::generic_category().message(startError)));
  }
  const Ending ending = EndingOf(waitStatus, startError);
  step.End(ending.exitStatus);
  if (ending.signal != 0) {
    DieOf(ending.signal, signals);
  }
  return ending.exitStatus;
}

}  // namespace

void AddRun(CLI::App& program, Action& action, char** command) {
  CLI::App* run = program.add_subcommand("run", kDescription);
  run->footer(kFooter);
  run->formatter(std::make_shared<RunFormatter>());
  const auto options = std::make_shared<StepOptions>();
  run->add_option("--step", options->name, "Name of the step")->type_name("NAME")->required();
  run->add_option("--transaction", options->transactionId,
                  "Transaction that the step belongs to; a new one if left out")
      ->type_name("ID");
  run->add_option("--event", options->eventId, "Event ID of the record")
      ->type_name("ID")
      ->capture_default_str();
  CLI::Option* parent =
      run->add_option("--parent", options->parentId, "Identifier of the parent span")
          ->type_name("ID");
  run->add_flag("--parent-from-file", options->isParentFromFile,
                "Take the parent from the span file: the step that ended last before this one ends")
      ->excludes(parent);
  run->add_option("--metrics", options->metricsFile,
                  "Append the record to this file; - is standard output")
      ->type_name("FILE");
  run->add_option("--span-directory", options->spanDirectory,
                  "Where the span file lies, if not in the working directory")
      ->type_name("DIR");
  const auto misplaced = std::make_shared<std::vector<std::string>>();
  run->add_option("command", *misplaced, "The command and its arguments, behind --")
      ->type_name("-- COMMAND");
  run->callback([&action, options, misplaced, command] {
    action = [options, misplaced, command] {
      if (!misplaced->empty()) {
        throw UsageError(
            fmt::format("{}: what is not an option stands behind --", misplaced->front()));
      }
      return RunStep(*options, command);
    };
  });
}

}  // namespace vmetrics
