/// Reads metrics logs line by line, and says what it could not read.
#ifndef VMETRICS_TOOL_LOGREADER_H_
#define VMETRICS_TOOL_LOGREADER_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Input.h"
#include "LineCutter.h"
#include "LineRecovery.h"
#include "LogEntry.h"

namespace vmetrics {

/// Where in which file a line stands.
struct LinePlace {
  const std::string& file;     ///< Its name as people read it.
  std::uint64_t number;        ///< From 1.
  std::size_t fileNumber = 0;  ///< Which of the files that are read it is, from 0.
};

class LogReader {
 public:
  struct Hooks {
    /// Is told of each entry; it is good for that call alone.
    std::function<void(const LinePlace&, const LogEntry&)> entry;
    /// Is told of each line in which something was no JSON object, or which shares its line with
    /// another; may be empty.
    std::function<void(const LinePlace&, std::string_view line)> damaged;
    /// Is told of each line that is longer than lines can be; may be empty.
    std::function<void(const LinePlace&)> overlong;
    /// Is told now and then how far a file is read; may be empty.
    std::function<void(const Input&)> progress;
    /// Is told what could not be read; the files behind it are read nevertheless.
    std::function<void(const InputError&)> unreadable;
  };

  explicit LogReader(Hooks hooks) : hooks_(std::move(hooks)) {}

  /// Reads the files one after the other; "-" is standard input, and so is an empty list.
  void Read(const std::vector<std::string>& files);

  /// Of all lines so far.
  LineRecovery::Counts Counts() const;
  std::uint64_t Overlong() const { return overlong_; }

 private:
  void ReadFile(const std::string& file, std::size_t fileNumber);
  void TakeLine(const LinePlace& place, std::string_view line);

  const Hooks hooks_;
  LineRecovery recovery_;
  LogEntryParser parser_;
  std::uint64_t whole_ = 0;  ///< Lines that needed no recovery.
  std::uint64_t overlong_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LOGREADER_H_
