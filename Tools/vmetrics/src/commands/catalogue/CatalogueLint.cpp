// The subcommand "lint" of "catalogue".

#include <fmt/format.h>

#include <memory>

#include "Command.h"
#include "Definitions.h"
#include "Format.h"
#include "LineCutter.h"
#include "catalogue/CatalogueCommand.h"
#include "catalogue/DefinitionLint.h"
#include "catalogue/LintReport.h"

namespace vmetrics {

namespace {

int Lint(const Definitions& definitions, bool isJson) {
  if (definitions.Files().empty()) {
    throw UsageError("catalogue lint needs a file, --definitions FILE or --event-definitions FILE");
  }
  definitions.RefuseStandardInputTwice();
  DefinitionLinter linter;
  LintReport report(isJson);
  bool isUnreadable = false;
  for (const DefinitionFile& file : definitions.Files()) {
    const auto take = [&](const LinePlace& place, std::string_view line) {
      report.Add(file.kind, place, linter.Lint(file.kind, place, line));
    };
    const auto overlong = [&](const LinePlace& place) {
      DefinitionVerdict verdict;
      verdict.isRefused = true;
      verdict.findings.push_back({"line-length", fmt::format("the line has more than {} bytes",
                                                             LineCutter::kLongestLine)});
      report.Add(file.kind, place, verdict);
    };
    try {
      ReadDefinitions(file, take, overlong);
    } catch (const InputError& error) {
      FinishOutput();
      Complain(error.what());
      isUnreadable = true;
    }
  }
  const int status = report.Finish();
  return isUnreadable ? kTrouble : status;
}

constexpr const char* kFooter =
    "Exit status: 0; 1 if there is something to say; 2 in trouble.\n\n"
    "Example:\n"
    "  vmetrics catalogue lint --definitions viewer.def --event-definitions viewer-events.def";

}  // namespace

CLI::App* AddCatalogueLint(CLI::App& catalogue, Action& action) {
  CLI::App* command =
      catalogue.add_subcommand("lint", "Tells which definitions are refused or surprise");
  command->footer(kFooter);
  const auto definitions = std::make_shared<Definitions>();
  definitions->AddTo(*command);
  const auto format = std::make_shared<std::string>();
  AddFormat(*command, *format, {"text", "json"});
  command->callback([&action, definitions, format] {
    action = [definitions, format] { return Lint(*definitions, *format == "json"); };
  });
  return command;
}

}  // namespace vmetrics
