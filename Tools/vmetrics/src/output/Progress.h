/// How far long work has come, on standard error.
#ifndef VMETRICS_TOOL_PROGRESS_H_
#define VMETRICS_TOOL_PROGRESS_H_

#include <chrono>

#include "Input.h"
#include "Terminal.h"

namespace vmetrics {

/// Shows which file is read and how much of it, on a line that is removed in the end, and before
/// anything else is written to the terminal. Nothing where standard error is no terminal, and
/// nothing before a second has passed.
class Progress {
 public:
  using Clock = std::chrono::steady_clock;

  /// `now` tells the time.
  explicit Progress(Clock::time_point (*now)() = Clock::now);
  ~Progress() { RemovePassingLine(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// May be called often: at most five times a second it shows something.
  void Show(const Input& input);

 private:
  Clock::time_point (*const now_)();
  const bool isTerminal_;
  Clock::time_point next_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_PROGRESS_H_
