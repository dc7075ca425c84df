#include <climits>
#include <utility>

#include "InUse.h"
#include "VMetricsTestKit.h"

namespace TestKit {
namespace {

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

/// What is, and what should be.
std::string Difference(const std::string& subject, const std::string& what,
                       const std::string& actual, const std::string& wanted) {
  return subject + ": " + what + " is " + actual + ", wanted " + wanted;
}

/// A list of lines for people, each on a line of its own.
std::string Listed(const std::string& title, const std::vector<std::string>& lines) {
  std::string text = title;
  for (const std::string& line : lines) {
    text += "\n  " + line;
  }
  return text;
}

/// What was written instead of what is missing.
std::string WithMetricsLines(const std::string& title) {
  if (std::string failure = NotInUse(); !failure.empty()) {
    return failure;
  }
  const std::vector<std::string> lines = MetricsLines();
  return lines.empty() ? title + "; no metrics line was written"
                       : Listed(title + "; written were:", lines);
}

std::string Shown(const LogLine& line) {
  return "level " + std::to_string(line.level) + ", " + line.function + ": " + line.message;
}

/// The log lines of this level or a graver one, as people read them.
std::vector<std::string> ShownUpTo(int level) {
  std::vector<std::string> shown;
  for (const LogLine& line : LogLines()) {
    if (line.level <= level) {
      shown.push_back(Shown(line));
    }
  }
  return shown;
}

}  // namespace

StepCheck ExpectStep(const std::string& eventId, const std::string& stepName) {
  StepCheck check;
  check.subject_ = "step " + Quoted(stepName) + " of event " + Quoted(eventId);
  check.step_ = FindStep(eventId, stepName);
  if (!check.step_.found) {
    check.failure_ = WithMetricsLines("no " + check.subject_ + " has ended");
  }
  return check;
}

std::string ExpectNoStep(const std::string& eventId, const std::string& stepName) {
  const Step step = FindStep(eventId, stepName);
  return step.found
             ? Listed("step " + Quoted(stepName) + " of event " + Quoted(eventId) + " has ended:",
                      {step.line})
             : NotInUse();
}

StepCheck& StepCheck::Succeeded() { return ErrorCode(0); }

StepCheck& StepCheck::ErrorCode(int wanted) {
  return Compare("error code", std::to_string(step_.errorCode), std::to_string(wanted));
}

StepCheck& StepCheck::UsedTime(unsigned long wanted) {
  return Compare("used time", std::to_string(step_.usedTime), std::to_string(wanted));
}

StepCheck& StepCheck::TransactionId(const std::string& wanted) {
  return Compare("transaction ID", Quoted(step_.transactionId), Quoted(wanted));
}

StepCheck& StepCheck::ParentStep(const std::string& wanted) {
  return Compare("parent step", Quoted(step_.parentStep), Quoted(wanted));
}

StepCheck& StepCheck::Compare(const char* what, const std::string& actual,
                              const std::string& wanted) {
  if (failure_.empty() && actual != wanted) {
    failure_ = Difference(subject_, what, actual, wanted);
  }
  return *this;
}

MetricCheck ExpectMetric(const std::string& eventId) {
  MetricCheck check;
  check.subject_ = "metric " + Quoted(eventId);
  std::vector<Metric> metrics = Metrics(eventId);
  check.times_ = metrics.size();
  if (metrics.empty()) {
    check.failure_ = WithMetricsLines("no " + check.subject_ + " was reported");
  } else {
    check.metric_ = std::move(metrics.back());
  }
  return check;
}

MetricCheck& MetricCheck::ServiceName(const std::string& wanted) {
  return Compare("service name", Quoted(metric_.serviceName), Quoted(wanted));
}

MetricCheck& MetricCheck::Arg(const std::string& name, const std::string& wanted) {
  const auto member = metric_.args.find(name);
  return Compare("args member " + Quoted(name),
                 member == metric_.args.end() ? "missing" : member->second, wanted);
}

MetricCheck& MetricCheck::Times(int wanted) {
  if (wanted == 0 && times_ == 0) {
    failure_ = NotInUse();  // That there is none was all else that could be wrong.
  }
  return Compare("number of reports", std::to_string(times_), std::to_string(wanted));
}

MetricCheck& MetricCheck::Compare(const std::string& what, const std::string& actual,
                                  const std::string& wanted) {
  if (failure_.empty() && actual != wanted) {
    failure_ = Difference(subject_, what, actual, wanted);
  }
  return *this;
}

std::string ExpectNoMetricsLines() {
  const std::vector<std::string> lines = MetricsLines();
  return lines.empty() ? NotInUse() : Listed("metrics lines were written:", lines);
}

std::string ExpectLogLine(int level, const std::string& message) {
  for (const LogLine& line : LogLines()) {
    if (line.level == level && line.message == message) {
      return {};
    }
  }
  if (std::string failure = NotInUse(); !failure.empty()) {
    return failure;
  }
  const std::string title =
      "no line of level " + std::to_string(level) + " says " + Quoted(message);
  const std::vector<std::string> lines = ShownUpTo(INT_MAX);
  return lines.empty() ? title + "; nothing was logged" : Listed(title + "; logged were:", lines);
}

std::string ExpectNoLogLines(int level) {
  const std::vector<std::string> lines = ShownUpTo(level);
  return lines.empty() ? NotInUse() : Listed("log lines were written:", lines);
}

}  // namespace TestKit
