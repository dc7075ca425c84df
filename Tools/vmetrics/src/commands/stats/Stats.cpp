#include <fmt/format.h>

#include <memory>

#include "ArgumentChecks.h"
#include "Command.h"
#include "Definitions.h"
#include "Format.h"
#include "LogFiles.h"
#include "MetricId.h"
#include "Privacy.h"
#include "stats/ComparisonOutput.h"
#include "stats/SummaryOutput.h"

namespace vmetrics {

namespace {

constexpr const char* kDescription =
    "Sums up metrics logs: for each step its durations, failures and most frequent error codes, "
    "for each metric with a numeric ID its values. With --compare, against an older log; the exit "
    "status is 1 if a step is worse.";

constexpr const char* kExample =
    "Example:\n"
    "  vmetrics stats client.log agent.log.gz\n"
    "  vmetrics stats --compare release-1.log --threshold 20 release-2.log";

struct StatsOptions {
  LogFiles files;
  std::optional<std::string> oldFile;
  Definitions definitions;
  Privacy privacy;
  std::string format;
  std::string period;
  SeriesChoice choice;
  std::vector<std::string> metrics;
  Rule rule;
};

void AddComparisonOptions(CLI::App& command, StatsOptions& options, CLI::Option* by) {
  CLI::Option* compare = command
                             .add_option("--compare", options.oldFile,
                                         "Show what has changed since the log OLD, - for standard "
                                         "input")
                             ->option_text("OLD");
  compare->excludes(by);
  command
      .add_option("--threshold", options.rule.threshold,
                  "A step is worse if its median grew by more than that, or its failure rate by "
                  "more than so many percentage points; 10 unless given")
      ->option_text("PERCENT")
      ->check(FiniteNumber())
      ->needs(compare);
  command
      .add_option("--min-growth", options.rule.leastGrowth,
                  "No median counts as grown that grew by less; 0 unless given")
      ->option_text("MS")
      ->check(FiniteNumber())
      ->needs(compare);
  command
      .add_option("--min-count", options.rule.leastCount,
                  "No step is judged that has fewer records in one of the logs; 1 unless given")
      ->option_text("COUNT")
      ->check(WholeNumber())
      ->needs(compare);
}

void AddOptions(CLI::App& command, StatsOptions& options) {
  options.files.AddTo(command);
  CLI::Option* by =
      command.add_option("--by", options.period, "Sum up each hour or day (UTC) by itself")
          ->option_text("hour|day")
          ->check(OneOf({"hour", "day"}));
  command.add_option("--step", options.choice.steps, "Only that step; may be given again")
      ->option_text("NAME")
      ->allow_extra_args(false);
  command
      .add_option("--metric", options.metrics,
                  "Only that metric, its ID decimal or hexadecimal; may be given again")
      ->option_text("ID")
      ->allow_extra_args(false);
  AddFormat(command, options.format, {"table", "json", "csv"});
  AddComparisonOptions(command, options, by);
  options.definitions.AddTo(command);
  options.privacy.AddTo(command, "the values of private metrics and the names of their members");
}

SeriesChoice ChoiceOf(const StatsOptions& options) {
  SeriesChoice choice = options.choice;
  choice.period = options.period == "hour"  ? Period::kHour
                  : options.period == "day" ? Period::kDay
                                            : Period::kNone;
  for (const std::string& metric : options.metrics) {
    const std::optional<int> id = ParseMetricId(metric);
    if (!id) {
      throw UsageError(fmt::format("--metric: {} is no metric ID", metric));
    }
    choice.metrics.push_back(*id);
  }
  return choice;
}

bool IsSelective(const SeriesChoice& choice) {
  return !choice.steps.empty() || !choice.metrics.empty();
}

void ReadLog(LogFiles& files, LogStatistics& statistics) {
  files.Read({[&statistics](const LinePlace&, const LogEntry& entry) { statistics.Add(entry); },
              nullptr, nullptr, nullptr, nullptr});
}

/// `status`, or that of trouble where not everything is counted.
int ConcludeStatistics(const LogStatistics& statistics, int status) {
  if (statistics.LeftOut() == 0) {
    return status;
  }
  Complain(
      fmt::format("values left out, as there are too many steps, metrics and periods: {}; "
                  "choose some by --step or --metric",
                  statistics.LeftOut()));
  return kTrouble;
}

/// Metrics are not judged: who asks for them alone asks for no comparison of steps.
bool WantsSteps(const SeriesChoice& choice) {
  return choice.metrics.empty() || !choice.steps.empty();
}

void ComplainOfNoneCompared(const Rule& rule) {
  const std::string where = rule.leastCount > 1
                                ? fmt::format("has {} records in both logs", rule.leastCount)
                                : "is in both logs";
  Complain("no step could be compared: none " + where);
}

/// The exit status that answers whether a step is worse.
int StatusOf(const Outcome& outcome, const StatsOptions& options) {
  if (outcome.judged > 0 || !WantsSteps(options.choice)) {
    return outcome.worse > 0 ? kFindings : kSuccess;
  }
  ComplainOfNoneCompared(options.rule);
  return kTrouble;
}

int ShowSummaries(StatsOptions& options) {
  LogStatistics statistics(options.choice, options.privacy);
  ReadLog(options.files, statistics);
  const std::vector<Summary> summaries = Summarise(statistics, options.privacy);
  WriteSummaries(summaries, options.choice.period, options.format);
  FinishOutput();
  if (summaries.empty()) {
    Complain(IsSelective(options.choice) ? "the logs hold nothing of what is asked for"
                                         : "the logs hold no step and no number of a metric");
  }
  const int status = options.files.Conclude(summaries.empty() ? kFindings : kSuccess);
  return ConcludeStatistics(statistics, status);
}

int ShowComparison(StatsOptions& options) {
  LogFiles oldFiles({*options.oldFile});
  LogStatistics before(options.choice, options.privacy);
  ReadLog(oldFiles, before);
  LogStatistics after(options.choice, options.privacy);
  ReadLog(options.files, after);
  const std::vector<Change> changes =
      Compare(Summarise(before, options.privacy), Summarise(after, options.privacy), options.rule);
  WriteChanges(changes, options.rule, options.format);
  FinishOutput();
  const int status =
      oldFiles.Conclude(options.files.Conclude(StatusOf(OutcomeOf(changes), options)));
  return ConcludeStatistics(before, ConcludeStatistics(after, status));
}

int Show(StatsOptions& options) {
  options.choice = ChoiceOf(options);
  std::vector<std::string> files = options.files.Names();
  if (options.oldFile) {
    files.push_back(*options.oldFile);
  }
  options.definitions.Register(files);
  return options.definitions.Conclude(options.oldFile ? ShowComparison(options)
                                                      : ShowSummaries(options));
}

}  // namespace

void AddStats(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("stats", kDescription);
  const auto options = std::make_shared<StatsOptions>();
  AddOptions(*command, *options);
  command->footer(kExample);
  command->callback([&action, options] { action = [options] { return Show(*options); }; });
}

}  // namespace vmetrics
