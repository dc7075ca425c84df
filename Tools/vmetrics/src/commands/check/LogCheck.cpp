#include "LogCheck.h"

#include <fmt/format.h>

#include "Text.h"

namespace vmetrics {

LogReader::Hooks LogCheck::Hooks() {
  LogReader::Hooks hooks;
  hooks.entry = [this](const LinePlace& line, const LogEntry& entry) { TakeRecord(line, entry); };
  hooks.damaged = [this](const LinePlace& line, std::string_view text) { TakeDamaged(line, text); };
  hooks.overlong = [this](const LinePlace& line) {
    findings_.Add(FindingKind::kTooLong, PlaceOf(line),
                  fmt::format("more than {} bytes", LineCutter::kLongestLine));
  };
  return hooks;
}

/// Also tells the findings of each file that has a line.
Place LogCheck::PlaceOf(const LinePlace& line) {
  if (file_ != line.fileNumber) {
    file_ = line.fileNumber;
    findings_.AddFile(line.file);
    ++fileCount_;
  }
  constexpr std::uint64_t kMostFiles = std::uint64_t{1} << 24U;
  constexpr std::uint64_t kMostLines = std::uint64_t{1} << 40U;
  return {(fileCount_ - 1) % kMostFiles, line.number % kMostLines};
}

void LogCheck::TakeRecord(const LinePlace& line, const LogEntry& entry) {
  const Place place = PlaceOf(line);
  recordsOnLine_ = place == latest_ ? recordsOnLine_ + 1 : 1;
  latest_ = place;
  ++recordCount_;
  records_.Check(place, entry);
}

/// The records of a damaged line come before it.
void LogCheck::TakeDamaged(const LinePlace& line, std::string_view text) {
  const Place place = PlaceOf(line);
  if (!(place == latest_)) {
    findings_.Add(FindingKind::kNotJson, place,
                  "no JSON object in " + Counted(text.size(), "byte"));
  } else if (recordsOnLine_ == 1) {
    findings_.Add(FindingKind::kGlued, place, "a record is glued to a fragment of another");
  } else {
    findings_.Add(FindingKind::kGlued, place,
                  fmt::format("{} records are glued to each other", recordsOnLine_));
  }
}

}  // namespace vmetrics
