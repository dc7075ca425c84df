#include "LogReader.h"

namespace vmetrics {

void LogReader::Read(const std::vector<std::string>& files) {
  std::size_t fileNumber = 0;
  for (const std::string& file : files.empty() ? std::vector<std::string>{"-"} : files) {
    try {
      ReadFile(file, fileNumber);
    } catch (const InputError& error) {
      hooks_.unreadable(error);
    }
    ++fileNumber;
  }
}

LineRecovery::Counts LogReader::Counts() const {
  LineRecovery::Counts counts = recovery_.Total();
  counts.whole += whole_;
  return counts;
}

void LogReader::ReadFile(const std::string& file, std::size_t fileNumber) {
  Input input(file);
  LineCutter cutter;
  std::uint64_t number = 0;
  std::uint64_t overlong = 0;
  const auto tellOverlong = [&] {
    for (; overlong < cutter.Overlong(); ++overlong) {
      ++overlong_;
      ++number;
      if (hooks_.overlong) {
        hooks_.overlong({input.Name(), number, fileNumber});
      }
    }
  };
  const auto take = [&](std::string_view line) {
    tellOverlong();
    TakeLine({input.Name(), ++number, fileNumber}, line);
  };
  try {
    for (std::string_view piece = input.Read(); !piece.empty(); piece = input.Read()) {
      cutter.Add(piece, take);
      if (hooks_.progress) {
        hooks_.progress(input);
      }
    }
  } catch (const InputError& error) {
    cutter.Finish(take);
    tellOverlong();
    throw;
  }
  cutter.Finish(take);
  tellOverlong();
}

void LogReader::TakeLine(const LinePlace& place, std::string_view line) {
  // As nearly always: one pass, which takes apart what it checks.
  const std::size_t firstBrace = line.find('{');
  if (firstBrace != line.npos) {
    if (const LogEntry* entry = parser_.Parse(line.substr(firstBrace))) {
      ++whole_;
      hooks_.entry(place, *entry);
      return;
    }
  }
  const LineRecovery::Counts before = recovery_.Total();
  for (const std::string_view text : recovery_.TextsOf(line)) {
    if (const LogEntry* entry = parser_.Parse(text)) {
      hooks_.entry(place, *entry);
    }
  }
  const LineRecovery::Counts& after = recovery_.Total();
  const bool isDamaged = after.fragments > before.fragments || after.recovered > before.recovered;
  if (isDamaged && hooks_.damaged) {
    hooks_.damaged(place, line);
  }
}

}  // namespace vmetrics
