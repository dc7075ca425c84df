#include <fmt/core.h>

#include <algorithm>
#include <exception>
#include <string>
#include <string_view>

#include "Command.h"
#include "Terminal.h"
#include "Text.h"
#include "VPlatformConfig.h"

namespace {

constexpr const char* kDescription =
    "Shows, checks and makes what VMetrics writes: its catalogue, packed records, metrics logs.";

bool IsRun(int argumentCount, char** arguments) {
  return argumentCount > 1 && std::string_view(arguments[1]) == "run";
}

int Run(int argumentCount, char** arguments) {
  // What stands behind the first "--" of `run` is a command of the user's, which the parser must
  // not touch: to it "{}" and "[a,b]" are no plain texts.
  char** const end = arguments + argumentCount;
  char** const separator =
      IsRun(argumentCount, arguments) ? std::find(arguments, end, std::string_view("--")) : end;
  CLI::App program(kDescription, "vmetrics");
  program.set_version_flag("--version", "vmetrics " VMETRICS_VERSION);
  program.require_subcommand(1);
  vmetrics::Action action;
  vmetrics::AddCatalogue(program, action);
  vmetrics::AddDecode(program, action);
  vmetrics::AddEncode(program, action);
  vmetrics::AddRun(program, action, separator == end ? nullptr : separator + 1);
  vmetrics::AddTrace(program, action);
  vmetrics::AddStats(program, action);
  vmetrics::AddCheck(program, action);
  try {
    program.parse(static_cast<int>(separator - arguments), arguments);
  } catch (const CLI::Success& help) {
    return program.exit(help);
  } catch (const CLI::RequiredError&) {
    if (argumentCount > 1 && program.get_subcommands().empty()) {
      throw vmetrics::UsageError(fmt::format("there is no subcommand {}", arguments[1]));
    }
    throw;
  }
  return action();
}

void ComplainOfUsage(const std::exception& error) {
  vmetrics::Complain(fmt::format("{}; see vmetrics --help", vmetrics::Printable(error.what())));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  // Of what the library has to say here, the tool tells its user itself, in words about the input.
  VPlatformConfig::SetDiagnosticsLevel(0);
  try {
    const int status = Run(argumentCount, arguments);
    vmetrics::FinishOutput();
    return status;
  } catch (const CLI::ParseError& error) {
    ComplainOfUsage(error);
  } catch (const vmetrics::UsageError& error) {
    ComplainOfUsage(error);
  } catch (const std::exception& error) {
    vmetrics::Complain(error.what());
  }
  // A command that is run as a step has exit statuses of its own; this one is left to its wrapper.
  constexpr int kTroubleOfRun = 125;
  return IsRun(argumentCount, arguments) ? kTroubleOfRun : vmetrics::kTrouble;
}
