/// How far long work has come, on standard error.
#ifndef VMETRICS_TOOL_PROGRESS_H_
#define VMETRICS_TOOL_PROGRESS_H_

#include <chrono>

#include "Input.h"

namespace vmetrics {

/// Shows which file is read and how much of it, on a line of its own that it removes in the end.
/// Nothing where standard error is no terminal, and nothing before a second has passed.
class Progress {
 public:
  Progress();
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// May be called often: at most five times a second it shows something.
  void Show(const Input& input);

  /// Removes the line; to be called before anything else is written to the terminal.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  const bool isTerminal_;
  Clock::time_point next_;
  bool isShown_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_PROGRESS_H_
