// What was recorded, taken apart.

#include <charconv>
#include <utility>

#include "FakePlatform.h"
#include "FakePlatformState.h"
#include "JsonMembers.h"
#include "VMetricsTestKit.h"

namespace TestKit {
namespace {

/// The JSON text of a member; empty where there is none.
std::string Json(const Members& members, const char* name) {
  const auto member = members.find(name);
  return member == members.end() ? std::string() : member->second;
}

std::string Text(const Members& members, const char* name) { return TextOf(Json(members, name)); }

template <typename Number>
Number NumberOf(const Members& members, const char* name) {
  const std::string json = Json(members, name);
  Number number = 0;
  std::from_chars(json.data(), json.data() + json.size(), number);
  return number;
}

/// Only the line of a step tells an identifier of its own.
bool IsStep(const Members& members) { return members.count("spanId") != 0; }

Metric MakeMetric(std::string line, Members members) {
  Metric metric;
  metric.line = std::move(line);
  metric.eventId = Text(members, "eventId");
  metric.serviceName = Text(members, "serviceName");
  metric.args = MembersOf(Json(members, "args"));
  metric.members = std::move(members);
  return metric;
}

Step MakeStep(std::string line, const Members& members) {
  const Members args = MembersOf(Json(members, "args"));
  Step step;
  step.found = true;
  step.line = std::move(line);
  step.eventId = Text(members, "eventId");
  step.transactionId = Text(members, "transactionId");
  step.stepName = Text(args, "stepName");
  step.spanId = Text(members, "spanId");
  step.parentSpanId = Text(members, "parentSpanId");
  step.errorCode = NumberOf<int>(args, "errorCode");
  step.isSuccess = NumberOf<int>(args, "isSuccess") != 0;
  step.startTime = NumberOf<unsigned long>(args, "startTime");
  step.endTime = NumberOf<unsigned long>(args, "endTime");
  step.usedTime = NumberOf<unsigned long>(args, "usedTime");
  return step;
}

/// The name of the step with this identifier; empty if it is none of them.
std::string NameOf(const std::vector<Step>& steps, const std::string& spanId) {
  for (const Step& step : steps) {
    if (step.spanId == spanId) {
      return step.stepName;
    }
  }
  return {};
}

}  // namespace

std::vector<std::string> MetricsLines() {
  std::vector<std::string> lines;
  const FakePlatform::LockedState state;
  for (const FakePlatform::MetricsLine& line : state->metricsLines) {
    lines.push_back(line.text);
  }
  return lines;
}

std::vector<LogLine> LogLines() {
  std::vector<LogLine> lines;
  const FakePlatform::LockedState state;
  for (const FakePlatform::LogLine& recorded : state->logLines) {
    LogLine line;
    line.level = recorded.level;
    line.message = recorded.message;
    line.function = recorded.function;
    line.file = recorded.file;
    line.line = recorded.line;
    lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<Metric> Metrics() {
  std::vector<Metric> metrics;
  for (std::string& line : MetricsLines()) {
    Members members = MembersOf(line);
    if (!IsStep(members)) {
      metrics.push_back(MakeMetric(std::move(line), std::move(members)));
    }
  }
  return metrics;
}

std::vector<Metric> Metrics(const std::string& eventId) {
  std::vector<Metric> metrics;
  for (Metric& metric : Metrics()) {
    if (metric.eventId == eventId) {
      metrics.push_back(std::move(metric));
    }
  }
  return metrics;
}

std::vector<Step> Steps() {
  std::vector<Step> steps;
  for (std::string& line : MetricsLines()) {
    const Members members = MembersOf(line);
    if (IsStep(members)) {
      steps.push_back(MakeStep(std::move(line), members));
    }
  }
  for (Step& step : steps) {
    step.parentStep = NameOf(steps, step.parentSpanId);
  }
  return steps;
}

Step FindStep(const std::string& eventId, const std::string& stepName) {
  Step found;
  for (Step& step : Steps()) {
    if (step.eventId == eventId && step.stepName == stepName) {
      found = std::move(step);
    }
  }
  return found;
}

}  // namespace TestKit
