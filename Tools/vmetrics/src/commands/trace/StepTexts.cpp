#include "trace/StepTexts.h"

#include <fmt/format.h>

#include "Text.h"
#include "Time.h"

namespace vmetrics {

namespace {

/// What the library puts into a record whose span file could not be locked.
constexpr std::string_view kRefusedLock = "ParentSpanId";

std::string TitleOf(const StepStore& store, const Transaction& transaction) {
  const bool hasIdentifier = transaction.identifier.kind != Identifier::Kind::kNone;
  return hasIdentifier ? Printable(store.TextOf(transaction.identifier))
                       : "(steps without a transaction ID)";
}

/// One of the two texts, the second one with the number, unless there is nothing to tell.
void Note(std::vector<std::string>& notes, std::size_t count, std::string_view one,
          std::string_view several) {
  if (count > 0) {
    notes.push_back(count == 1 ? std::string(one) : fmt::format(fmt::runtime(several), count));
  }
}

std::string NameOf(const StepStore& store, const Step& step) {
  return PrintableName(store.DescriptionOf(step).name);
}

bool HasDates(const TimelineStep& timed) { return timed.placement != Placement::kNoDate; }

}  // namespace

std::string StepTexts::Title() const { return TitleOf(view_.store, view_.transaction); }

std::string StepTexts::Name(const TimelineStep& timed) const {
  return NameOf(view_.store, *timed.step);
}

std::string StepTexts::Start(const TimelineStep& timed) const {
  return HasDates(timed) ? Offset(timed.step->start) : "?";
}

std::string StepTexts::Offset(std::int64_t tick) const {
  const Timeline& timeline = view_.timeline;
  return HumanDuration(tick -
                       (timeline.HasScale() ? timeline.start : timeline.steps.front().step->start));
}

std::string StepTexts::Took(const TimelineStep& timed) const {
  return HasDates(timed) ? HumanDuration(timed.step->end - timed.step->start) : "?";
}

std::string StepTexts::Error(const TimelineStep& timed) const {
  if (!timed.step->isFailed) {
    return {};
  }
  return timed.step->errorCode != 0 ? std::to_string(timed.step->errorCode) : "?";
}

std::string StepTexts::Parent(const TimelineStep& timed) const {
  const std::string_view name = view_.store.DescriptionOf(*timed.step).parentName;
  return ParentPlace(*timed.step) + (name.empty() ? "" : "; part of " + Printable(name));
}

std::string StepTexts::ParentPlace(const Step& step) const {
  if (step.parent.kind == Identifier::Kind::kNone) {
    return "no parent";
  }
  const std::string span = view_.store.TextOf(step.parent);
  if (span == kRefusedLock) {
    return "parent unknown, the span file could not be locked";
  }
  const Parents::Place place = view_.parents->Of(step, view_.transaction);
  if (place.step == nullptr) {
    return fmt::format("parent {}: not in the log", Printable(span));
  }
  const std::string name = NameOf(view_.store, *place.step);
  const std::string elsewhere = place.transaction == &view_.transaction
                                    ? ""
                                    : ", in " + TitleOf(view_.store, *place.transaction);
  return fmt::format("parent {}: {}{}", Printable(span), name, elsewhere);
}

std::vector<std::string> StepTexts::Notes() const {
  const Timeline& timeline = view_.timeline;
  std::vector<std::string> notes;
  if (timeline.HasPath()) {
    notes.push_back("* slowest path" + LongestNote());
  }
  Note(notes, timeline.Count(Placement::kEndsBeforeStart), "! 1 step ends before its start",
       "! {} steps end before their start");
  Note(notes, timeline.Count(Placement::kFarAway),
       "1 step begins or ends more than 31 days away, beyond the scale",
       "{} steps begin or end more than 31 days away, beyond the scale");
  Note(notes, timeline.Count(Placement::kNoDate), "? 1 step has no times from 1970 to 9999",
       "? {} steps have no times from 1970 to 9999");
  Note(notes, timeline.sharedSpans, "1 step has the span ID of another one",
       "{} steps have the span ID of another one");
  if (view_.isIncomplete) {
    notes.push_back("earlier steps are left out, as too many transactions lie in between");
  }
  return notes;
}

std::string StepTexts::LongestNote() const {
  const Longest& longest = view_.timeline.longest;
  if (longest.step == nullptr) {
    return {};
  }
  const std::string name =
      longest.isGap ? std::string(kNoStep) : NameOf(view_.store, *longest.step);
  return fmt::format("; longest on it: {}, {} of {}", name, HumanDuration(longest.time),
                     HumanDuration(view_.timeline.Duration()));
}

}  // namespace vmetrics
