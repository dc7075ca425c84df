/// The metrics logs that a subcommand is given, read with all that a user expects to see of it.
#ifndef VMETRICS_TOOL_LOGFILES_H_
#define VMETRICS_TOOL_LOGFILES_H_

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "LogReader.h"
#include "Terminal.h"

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

  /// After the result is written: says how many lines were damaged, and where the first is. Returns
  /// as StatusOf.
  int Conclude(int status) const;

  /// `status`, or that of trouble where a file could not be read.
  int StatusOf(int status) const { return isUnreadable_ ? kTrouble : status; }

 private:
  /// Lines of one kind.
  struct Lines {
    std::uint64_t count = 0;
    std::string first;  ///< "old.log:17"

    void Add(const LinePlace& place);
    /// "1 damaged line (old.log:17)", "2 damaged lines (the first: old.log:17)".
    std::string Described(std::string_view kind) const;
  };

  std::vector<std::string> names_;
  LineRecovery::Counts counts_;
  Lines damaged_;
  Lines overlong_;
  bool isUnreadable_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LOGFILES_H_
