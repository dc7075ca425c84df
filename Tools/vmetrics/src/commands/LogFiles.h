/// The metrics logs that a subcommand is given, read with all that a user expects to see of it.
#ifndef VMETRICS_TOOL_LOGFILES_H_
#define VMETRICS_TOOL_LOGFILES_H_

#include <CLI/CLI.hpp>
#include <string>
#include <utility>
#include <vector>

#include "LogReader.h"

namespace vmetrics {

class LogFiles {
 public:
  LogFiles() = default;
  explicit LogFiles(std::vector<std::string> names) : names_(std::move(names)) {}

  /// Adds the operands to the subcommand.
  void AddTo(CLI::App& command);

  /// The files to be read; "-" is standard input.
  std::vector<std::string> Names() const;

  /// Reads the files, or standard input where none is named, with progress and complaints. Of the
  /// hooks the first three are the caller's. Throws UsageError where standard input is named twice.
  void Read(LogReader::Hooks hooks);

  /// After the result is written: says what was damaged, as "2 lines recovered, ...". Returns
  /// `status`, or that of trouble where a file could not be read.
  int Conclude(int status) const;

 private:
  std::vector<std::string> names_;
  LineRecovery::Counts counts_;
  std::uint64_t overlong_ = 0;
  bool isUnreadable_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LOGFILES_H_
