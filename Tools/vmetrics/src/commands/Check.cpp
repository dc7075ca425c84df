#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "ArgumentChecks.h"
#include "Command.h"
#include "Definitions.h"
#include "Format.h"
#include "LogFiles.h"
#include "Privacy.h"
#include "Text.h"
#include "check/Findings.h"
#include "check/LogCheck.h"

namespace vmetrics {

namespace {

constexpr const char* kDescription =
    "Compares metrics logs with the catalogue and the rules of the library's records. Each finding "
    "is a line FILE:LINE: kind: message. The exit status is 1 if there is any.";

constexpr const char* kExample =
    "Example:\n"
    "  vmetrics check --definitions own.txt session.log\n"
    "    The log of a program that registers the metrics in own.txt.\n"
    "  vmetrics check --format json --ignore missing-parent today.log.gz\n"
    "    For a machine; today's first step may have its parent in yesterday's log.";

struct CheckOptions {
  LogFiles files;
  Definitions definitions;
  Privacy privacy;
  std::vector<std::string> ignored;
  std::string format;
  Findings::Options findings;
};

std::string RefusalOfKind(const std::string& text) {
  const bool isKind =
      std::any_of(kFindingKinds.begin(), kFindingKinds.end(),
                  [&text](const FindingKindText& kind) { return kind.name == text; });
  return isKind ? "" : fmt::format("\"{}\" is no kind of findings", text);
}

std::string KindsExplained() {
  std::string text = "Kinds of findings:\n";
  for (const FindingKindText& kind : kFindingKinds) {
    text += fmt::format("  {:<16}{}\n", kind.name, kind.meaning);
  }
  return text;
}

Findings::Options FindingsOptions(const CheckOptions& options) {
  Findings::Options result = options.findings;
  for (std::size_t kind = 0; kind < kFindingKinds.size(); ++kind) {
    result.isIgnored[kind] =
        std::count(options.ignored.begin(), options.ignored.end(), kFindingKinds[kind].name) > 0;
  }
  result.isJson = options.format == "json";
  return result;
}

int Check(CheckOptions& options) {
  options.definitions.Register(options.files.Names());
  Findings findings(FindingsOptions(options));
  LogCheck check(options.privacy, findings);
  options.files.Read(check.Hooks());
  check.Finish();
  findings.Finish();
  FinishOutput();  // So that the summary comes last when both go to one place.
  const int status = options.files.StatusOf(findings.Count() > 0 ? kFindings : kSuccess);
  Complain(fmt::format("{} checked, {}", Counted(check.Records(), "record"), findings.Summary()));
  return options.definitions.Conclude(status);
}

}  // namespace

void AddCheck(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("check", kDescription);
  const auto options = std::make_shared<CheckOptions>();
  options->files.AddTo(*command);
  options->definitions.AddTo(*command);
  command
      ->add_option("--ignore", options->ignored,
                   "Leave findings of the kind out; several are separated by commas")
      ->option_text("KIND")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::Validator(RefusalOfKind, ""));
  command->add_option("--max", options->findings.most, "Write at most N findings, but count all")
      ->option_text("N")
      ->check(WholeNumber());
  AddFormat(*command, options->format, {"text", "json"});
  options->privacy.AddTo(*command);
  command->footer(KindsExplained() + "\n" + kExample);
  command->callback([&action, options] { action = [options] { return Check(*options); }; });
}

}  // namespace vmetrics
