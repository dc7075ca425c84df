#include "trace/Waterfall.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "Terminal.h"
#include "Text.h"
#include "Time.h"
#include "trace/Bar.h"
#include "trace/StepTexts.h"

namespace vmetrics {

namespace {

constexpr std::size_t kMark = 2;   // Columns of the mark in front of a step.
constexpr std::size_t kSpace = 2;  // Between columns of the table.
constexpr std::size_t kIndent = 2;
constexpr std::size_t kNarrowestBar = 10;
constexpr std::size_t kNarrowestName = 8;

class Waterfall {
 public:
  Waterfall(const TransactionView& view, const WaterfallForm& form);
  void Show() const;

 private:
  /// What a line of the table shows, by column.
  struct Cells {
    std::string name;
    std::string start;
    std::string took;
    std::string error;
    std::string bar;
  };

  void ShowSummary() const;
  void ShowHeader() const;
  void ShowStep(const TimelineStep& timed) const;
  void ShowGap(const TimelineStep& timed) const;
  void ShowLine(std::string_view mark, const Cells& cells, Style text, Style bar) const;
  std::size_t IndentOf(const TimelineStep& timed) const;
  std::string BarOf(const TimelineStep& timed, const Scale& scale) const;
  Scale MakeScale() const;

  const TransactionView& view_;
  const Timeline& timeline_;
  const WaterfallForm& form_;
  const StepTexts texts_;
  std::size_t nameWidth_ = WidthOf("step");
  std::size_t startWidth_ = WidthOf("start");
  std::size_t tookWidth_ = WidthOf("took");
  std::size_t errorWidth_ = 0;
  std::size_t barWidth_ = 0;
};

Waterfall::Waterfall(const TransactionView& view, const WaterfallForm& form)
    : view_(view), timeline_(view.timeline), form_(form), texts_(view) {
  for (const TimelineStep& timed : timeline_.steps) {
    nameWidth_ = std::max({nameWidth_, kIndent * timed.depth + WidthOf(texts_.Name(timed)),
                           timed.gapBefore > 0 ? kNoStep.size() : 0});
    startWidth_ = std::max(startWidth_, texts_.Start(timed).size());
    tookWidth_ =
        std::max({tookWidth_, texts_.Took(timed).size(), HumanDuration(timed.gapBefore).size()});
    errorWidth_ = std::max(errorWidth_, texts_.Error(timed).size());
  }
  errorWidth_ = errorWidth_ > 0 ? std::max(errorWidth_, WidthOf("error")) : 0;
  const std::size_t taken = kMark + kSpace + startWidth_ + kSpace + tookWidth_ + kSpace +
                            (errorWidth_ > 0 ? errorWidth_ + kSpace : 0);
  const std::size_t rest = form_.width - std::min(form_.width, taken);
  nameWidth_ = std::min(nameWidth_, std::max(rest / 2, kNarrowestName));
  barWidth_ = std::max(rest - std::min(rest, nameWidth_), kNarrowestBar);
}

void Waterfall::Show() const {
  ShowSummary();
  ShowHeader();
  for (const TimelineStep& timed : timeline_.steps) {
    if (timed.gapBefore > 0) {
      ShowGap(timed);
    }
    ShowStep(timed);
    if (view_.parents != nullptr) {
      Write(std::string(kMark + IndentOf(timed) + kIndent, ' ') +
            Styled(Style::kDim, texts_.Parent(timed)) + "\n");
    }
  }
  for (const std::string& note : texts_.Notes()) {
    Write(std::string(kMark, ' ') + Styled(Style::kDim, note) + "\n");
  }
}

void Waterfall::ShowSummary() const {
  const std::string title = texts_.Title();
  const std::string times =
      timeline_.HasScale()
          ? fmt::format("{} UTC  {}", UtcTime(timeline_.start), HumanDuration(timeline_.Duration()))
          : "at an unknown time";
  const std::size_t count = timeline_.steps.size();
  const std::string steps = fmt::format("{} step{}", count, count == 1 ? "" : "s");
  const std::string failures = fmt::format("{} failed", timeline_.failures);
  const std::size_t width =
      WidthOf(title) + times.size() + steps.size() + failures.size() + 3 * kSpace;
  Write(fmt::format("{}{}  {}  {}  {}\n", Styled(Style::kBold, title),
                    width <= form_.width ? "" : "\n", times, steps,
                    timeline_.failures > 0 ? Styled(Style::kRed, failures) : failures));
}

void Waterfall::ShowHeader() const {
  const std::string end = AlignedRight(HumanDuration(timeline_.Duration()), barWidth_ - 1);
  ShowLine("",
           {"step", "start", "took", errorWidth_ > 0 ? "error" : "",
            timeline_.HasScale() ? "0" + end : ""},
           Style::kDim, Style::kDim);
}

void Waterfall::ShowStep(const TimelineStep& timed) const {
  const bool isMarked = timed.isOnSlowestPath && timeline_.HasPath();
  const Style failure = timed.step->isFailed ? Style::kRed : Style::kPlain;
  ShowLine(isMarked ? "*" : "",
           {std::string(IndentOf(timed), ' ') + texts_.Name(timed), texts_.Start(timed),
            texts_.Took(timed), texts_.Error(timed), BarOf(timed, MakeScale())},
           failure, isMarked && failure == Style::kPlain ? Style::kYellow : failure);
}

void Waterfall::ShowGap(const TimelineStep& timed) const {
  const std::int64_t end = timed.step->start;
  const std::int64_t start = end - timed.gapBefore;
  ShowLine("",
           {std::string(kNoStep), texts_.Offset(start), HumanDuration(timed.gapBefore), "",
            MakeScale().Gap(start, end)},
           Style::kDim, Style::kDim);
}

void Waterfall::ShowLine(std::string_view mark, const Cells& cells, Style text, Style bar) const {
  constexpr std::string_view kBetween = "  ";
  std::string line =
      fmt::format("{:<{}}", mark, kMark) + Styled(text, Fitted(cells.name, nameWidth_));
  line.append(kBetween).append(Styled(text, AlignedRight(cells.start, startWidth_)));
  line.append(kBetween).append(Styled(text, AlignedRight(cells.took, tookWidth_)));
  if (errorWidth_ > 0) {
    line.append(kBetween).append(Styled(text, AlignedRight(cells.error, errorWidth_)));
  }
  if (!cells.bar.empty()) {
    line.append(kBetween).append(Styled(bar, cells.bar));
  }
  line.resize(line.find_last_not_of(' ') + 1);
  Write(line + "\n");
}

std::size_t Waterfall::IndentOf(const TimelineStep& timed) const {
  return std::min(kIndent * timed.depth, nameWidth_ / 2);
}

std::string Waterfall::BarOf(const TimelineStep& timed, const Scale& scale) const {
  const Step& step = *timed.step;
  switch (timed.placement) {
    case Placement::kNoDate:
      return "?";
    case Placement::kEndsBeforeStart:
      return scale.Mark(step.start, '!');
    case Placement::kInScale:
    case Placement::kFarAway:
      break;
  }
  return scale.Bar(std::min(step.start, step.end), std::max(step.start, step.end));
}

Scale Waterfall::MakeScale() const {
  return {timeline_.start, timeline_.end, barWidth_, form_.hasBlocks};
}

}  // namespace

void WriteWaterfall(const TransactionView& view, const WaterfallForm& form) {
  Waterfall(view, form).Show();
}

}  // namespace vmetrics
