/// What a waterfall says of a transaction and of each of its steps.
#ifndef VMETRICS_TOOL_STEPTEXTS_H_
#define VMETRICS_TOOL_STEPTEXTS_H_

#include <string>
#include <string_view>
#include <vector>

#include "trace/TransactionView.h"

namespace vmetrics {

/// What stands where a step's name would, for a time in which no step ran.
constexpr std::string_view kNoStep = "(no step)";

/// All texts are printable.
class StepTexts {
 public:
  explicit StepTexts(const TransactionView& view) : view_(view) {}

  /// The identifier of the transaction.
  std::string Title() const;

  std::string Name(const TimelineStep& timed) const;

  /// Since the start of the transaction.
  std::string Start(const TimelineStep& timed) const;
  std::string Offset(std::int64_t tick) const;

  std::string Took(const TimelineStep& timed) const;

  /// The error code of a step that failed, "?" where it has none but 0; nothing for others.
  std::string Error(const TimelineStep& timed) const;

  /// Which span the step has for its parent, and where that is.
  std::string Parent(const TimelineStep& timed) const;

  /// What has to be said besides, a line each.
  std::vector<std::string> Notes() const;

 private:
  std::string ParentPlace(const Step& step) const;
  std::string LongestNote() const;

  const TransactionView& view_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STEPTEXTS_H_
