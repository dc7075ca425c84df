#include "Findings.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "JsonText.h"
#include "Terminal.h"
#include "Text.h"

namespace vmetrics {

namespace {

/// As many are kept to be sorted: those of steps whose parents are missing come after all others.
constexpr std::size_t kMostWaiting = 10000;

bool IsBefore(const Finding& left, const Finding& right) { return left.place < right.place; }

}  // namespace

std::string Findings::Describe(const Place& place) const {
  return fmt::format("{}:{}", Printable(files_[place.file]), std::uint64_t{place.line});
}

void Findings::Add(FindingKind kind, const Place& place, std::string message) {
  if (!AreWanted(kind)) {
    return;
  }
  ++count_;
  ++counts_[static_cast<std::size_t>(kind)];
  if (written_ == options_.most) {
    return;
  }
  waiting_.push_back({kind, place, std::move(message)});
  if (waiting_.size() >= kMostWaiting) {
    WriteWaiting();
  }
}

void Findings::Finish() { WriteWaiting(); }

void Findings::WriteWaiting() {
  std::stable_sort(waiting_.begin(), waiting_.end(), IsBefore);
  for (const Finding& finding : waiting_) {
    if (written_ < options_.most) {
      Write(finding);
      ++written_;
    }
  }
  waiting_.clear();
}

void Findings::Write(const Finding& finding) const {
  const std::string_view kind = TextOf(finding.kind).name;
  if (options_.isJson) {
    VJson::Value line;
    line.AddJsonValue("file", files_[finding.place.file]);
    line.AddJsonValue("line", std::uint64_t{finding.place.line});
    line.AddJsonValue("kind", std::string(kind));
    line.AddJsonValue("message", finding.message);
    vmetrics::Write(JsonText(line) + '\n');
  } else {
    vmetrics::Write(fmt::format("{}: {}: {}\n", Describe(finding.place),
                                Styled(Style::kYellow, kind), finding.message));
  }
}

std::string Findings::Summary() const {
  if (count_ == 0) {
    return "no finding";
  }
  std::string summary = Counted(count_, "finding");
  if (written_ < count_) {
    summary += fmt::format(" ({} shown)", written_);
  }
  std::string_view separator = ": ";
  for (std::size_t kind = 0; kind < counts_.size(); ++kind) {
    if (counts_[kind] > 0) {
      summary += fmt::format("{}{} {}", separator, counts_[kind], kFindingKinds[kind].name);
      separator = ", ";
    }
  }
  return summary;
}

}  // namespace vmetrics
