#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

#include "Command.h"
#include "HelpFormatter.h"
#include "Terminal.h"
#include "Text.h"
#include "VPlatformConfig.h"

namespace {

constexpr const char* kDescription =
    "Shows, checks and makes what VMetrics writes: its catalogue, packed records, metrics logs.";

bool IsRun(int argumentCount, char** arguments) {
  return argumentCount > 1 && std::string_view(arguments[1]) == "run";
}

/// What the user asked for, "vmetrics catalogue lint", as far as that is known.
std::string NameOf(const CLI::App& program) {
  std::string name = program.get_name();
  for (const CLI::App* app = &program; !app->get_subcommands().empty();) {
    app = app->get_subcommands().front();
    name += ' ' + app->get_name();
  }
  return name;
}

/// The words of the parser as the tool's own.
std::string TextOf(const CLI::ParseError& error) {
  std::string text = error.what();
  const std::size_t colon = text.find(": ");
  if (error.get_name() == "ArgumentMismatch" && colon != text.npos) {
    const bool isMissing = text.find(" missing", colon) != text.npos;
    return text.substr(0, colon) + (isMissing ? " needs a value" : " is given more than once");
  }
  return text;
}

/// What stands where a subcommand should.
std::string TextOfUnknown(std::string_view argument) {
  return fmt::format("there is no {} {}", argument.substr(0, 1) == "-" ? "option" : "subcommand",
                     argument);
}

int ComplainOfUsage(const CLI::App& program, std::string_view text, int status) {
  vmetrics::Complain(fmt::format("{}; see {} --help", vmetrics::Printable(text), NameOf(program)));
  return status;
}

int Run(int argumentCount, char** arguments, int troubleStatus) {
  // What stands behind the first "--" of `run` is a command of the user's, which the parser must
  // not touch: to it "{}" and "[a,b]" are no plain texts.
  char** const end = arguments + argumentCount;
  char** const separator =
      IsRun(argumentCount, arguments) ? std::find(arguments, end, std::string_view("--")) : end;
  CLI::App program(kDescription, "vmetrics");
  program.formatter(std::make_shared<vmetrics::HelpFormatter>());
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
    return action();
  } catch (const CLI::Success& help) {
    return program.exit(help);
  } catch (const CLI::RequiredError& error) {
    const bool isUnknown = argumentCount > 1 && program.get_subcommands().empty();
    const std::string text = isUnknown ? TextOfUnknown(arguments[1]) : error.what();
    return ComplainOfUsage(program, text, troubleStatus);
  } catch (const CLI::ExtrasError&) {
    const std::string extras = fmt::format("{}", fmt::join(program.remaining(true), " "));
    return ComplainOfUsage(program, "not understood: " + extras, troubleStatus);
  } catch (const CLI::ParseError& error) {
    return ComplainOfUsage(program, TextOf(error), troubleStatus);
  } catch (const vmetrics::UsageError& error) {
    return ComplainOfUsage(program, error.what(), troubleStatus);
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  // Of what the library has to say here, the tool tells its user itself, in words about the input.
  VPlatformConfig::SetDiagnosticsLevel(0);
  // A command that is run as a step has exit statuses of its own; this one is left to its wrapper.
  constexpr int kTroubleOfRun = 125;
  const int troubleStatus = IsRun(argumentCount, arguments) ? kTroubleOfRun : vmetrics::kTrouble;
  try {
    const int status = Run(argumentCount, arguments, troubleStatus);
    vmetrics::FinishOutput();
    return status;
  } catch (const std::exception& error) {
    vmetrics::Complain(error.what());
    return troubleStatus;
  }
}
