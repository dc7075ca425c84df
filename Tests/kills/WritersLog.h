/// What killed writers have left in their metrics file.
#ifndef WRITERSLOG_H_
#define WRITERSLOG_H_

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "LineRecovery.h"

/// Reads the file by the tool's means and compares every text with what its writer must have
/// written under its number. Any difference fails the test.
class WritersLog {
 public:
  WritersLog(const std::string& path, int writers);

  /// How many lines of `writer` are there: those from 0 on, without a gap.
  int Lines(int writer) const { return next_[static_cast<std::size_t>(writer)]; }

  const vmetrics::LineRecovery::Counts& Counts() const { return counts_; }

  int Steps() const { return steps_; }

  /// Steps whose process was refused the lock, and so does not know its parent.
  int StepsWithoutParent() const { return refused_; }

  /// Parents whose own step is not in the log: each is that of a process killed after it had
  /// published its identifier and before it had written its record.
  std::size_t ParentsWithoutStep() const;

 private:
  void Take(std::string_view text);
  void TakeLine(const std::string& text);
  void TakeStep(const std::string& text);
  void TakeNumber(const std::string& text, const std::string& numbers);

  std::vector<int> next_;
  vmetrics::LineRecovery::Counts counts_;
  int steps_ = 0;
  int refused_ = 0;
  std::set<std::string> identifiers_;
  std::set<std::string> parents_;
};

#endif  // WRITERSLOG_H_
