/// Checks logs line by line.
#ifndef VMETRICS_TOOL_LOGCHECK_H_
#define VMETRICS_TOOL_LOGCHECK_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "Findings.h"
#include "LogReader.h"
#include "Privacy.h"
#include "RecordCheck.h"

namespace vmetrics {

class LogCheck {
 public:
  LogCheck(const Privacy& privacy, Findings& findings)
      : findings_(findings), records_(privacy, findings) {}

  /// What a reader of logs is to call.
  LogReader::Hooks Hooks();

  /// To be called once, after the last line.
  void Finish() { records_.Finish(); }

  std::uint64_t Records() const { return recordCount_; }

 private:
  Place PlaceOf(const LinePlace& line);
  void TakeRecord(const LinePlace& line, const LogEntry& entry);
  void TakeDamaged(const LinePlace& line, std::string_view text);

  Findings& findings_;
  RecordCheck records_;
  std::optional<std::size_t> file_;  ///< Of the latest line, as the reader numbers them.
  std::uint64_t fileCount_ = 0;      ///< Those that have lines.
  Place latest_{0, 0};               ///< Of the latest record.
  std::uint64_t recordsOnLine_ = 0;
  std::uint64_t recordCount_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LOGCHECK_H_
