#include "trace/TraceJson.h"

#include <string>

namespace vmetrics {

namespace {

void AddText(VJson::Value& object, std::string_view key, std::string_view text) {
  if (!text.empty()) {
    object.AddJsonValue(key, std::string(text));
  }
}

const char* ProblemOf(Placement placement) {
  switch (placement) {
    case Placement::kEndsBeforeStart:
      return "endsBeforeStart";
    case Placement::kFarAway:
      return "farAway";
    case Placement::kNoDate:
      return "noDate";
    case Placement::kInScale:
      break;
  }
  return "";
}

void AddTimes(VJson::Value& object, const TimelineStep& timed, const Timeline& timeline) {
  const Step& step = *timed.step;
  if (step.start != kNoTick) {
    object.AddJsonValue("startTime", step.start);
  }
  if (step.end != kNoTick) {
    object.AddJsonValue("endTime", step.end);
  }
  if (timed.placement != Placement::kInScale) {
    object.AddJsonValue("problem", ProblemOf(timed.placement));
    return;
  }
  object.AddJsonValue("usedTime", step.end - step.start);
  object.AddJsonValue("offset", step.start - timeline.start);
  object.AddJsonValue("gapBefore", timed.gapBefore);
  object.AddJsonValue("depth", timed.depth);
  object.AddJsonValue("isOnSlowestPath", timed.isOnSlowestPath);
}

void AddParent(VJson::Value& object, const Step& step, const TransactionView& view) {
  const Parents::Place place = view.parents->Of(step, view.transaction);
  if (place.step != nullptr) {
    VJson::Value parent;
    parent.AddJsonValue("stepName", std::string(view.store.DescriptionOf(*place.step).name));
    AddText(parent, "transactionId", view.store.TextOf(place.transaction->identifier));
    object.Add("parent", parent);
  }
}

VJson::Value ObjectOf(const TimelineStep& timed, const TransactionView& view) {
  const Step& step = *timed.step;
  const Description description = view.store.DescriptionOf(step);
  VJson::Value object;
  object.AddJsonValue("stepName", std::string(description.name));
  AddText(object, "eventId", description.eventId);
  AddText(object, "spanId", view.store.TextOf(step.span));
  AddText(object, "parentSpanId", view.store.TextOf(step.parent));
  AddText(object, "parentStepName", description.parentName);
  if (view.parents != nullptr) {
    AddParent(object, step, view);
  }
  if (step.hasErrorCode) {
    object.AddJsonValue("errorCode", step.errorCode);
  }
  object.AddJsonValue("isFailed", step.isFailed);
  AddTimes(object, timed, view.timeline);
  return object;
}

VJson::Value LongestOf(const TransactionView& view) {
  const Longest& longest = view.timeline.longest;
  VJson::Value object;
  if (!longest.isGap) {
    object.AddJsonValue("stepName", std::string(view.store.DescriptionOf(*longest.step).name));
  }
  object.AddJsonValue("usedTime", longest.time);
  return object;
}

/// A value becomes an array by parsing one.
VJson::Value StepsOf(const TransactionView& view) {
  std::string text = "[";
  for (const TimelineStep& timed : view.timeline.steps) {
    text += ObjectOf(timed, view).ToString() + ",";
  }
  text.back() = ']';
  VJson::Value steps;
  steps.Parse(text);
  return steps;
}

}  // namespace

VJson::Value JsonOf(const TransactionView& view) {
  const Timeline& timeline = view.timeline;
  VJson::Value object;
  AddText(object, "transactionId", view.store.TextOf(view.transaction.identifier));
  if (timeline.HasScale()) {
    object.AddJsonValue("startTime", timeline.start);
    object.AddJsonValue("endTime", timeline.end);
    object.AddJsonValue("usedTime", timeline.Duration());
  }
  object.AddJsonValue("failures", timeline.failures);
  object.AddJsonValue("copies", timeline.copies);
  object.AddJsonValue("sharedSpans", timeline.sharedSpans);
  object.AddJsonValue("isIncomplete", view.isIncomplete);
  if (timeline.longest.step != nullptr) {
    object.Add("longest", LongestOf(view));
  }
  object.Add("steps", StepsOf(view));
  return object;
}

}  // namespace vmetrics
