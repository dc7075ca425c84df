#include "ArgsCheck.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "NameList.h"

namespace vmetrics {

namespace {

// Of a metric's entry.
constexpr std::size_t kType = 0;
constexpr std::size_t kName = 1;

/// How the values of a type are rendered; nothing for a type without any.
std::optional<Want> WantOf(std::string_view type) {
  static constexpr std::array<std::pair<std::string_view, Want>, 7> kWants{
      {{"string", Want::kText},
       {"int", Want::kInt},
       {"uint64_t", Want::kUint64},
       {"int64_t", Want::kInt64},
       {"double", Want::kDouble},
       {"bool", Want::kBoolean},
       {"enum", Want::kNumberText}}};
  for (const auto& [name, want] : kWants) {
    if (name == type) {
      return want;
    }
  }
  return std::nullopt;
}

}  // namespace

void ArgsCheck::Check(const Place& place, std::string_view eventId, const MetricEntry& metric,
                      const LogEntry& entry) {
  const Member* args = entry.Find("args");
  const bool isJson = metric[kType] == "json";
  if (args == nullptr) {
    findings_.Add(FindingKind::kNoArgs, place,
                  fmt::format(isJson ? "the value of {} was not JSON"
                                     : "whoever wrote the line did not know {}",
                              Shortened(metric[kName])));
  } else if (isJson) {
    CheckAny(place, eventId, entry);
  } else if (args->kind != JsonKind::kObject) {
    findings_.Add(FindingKind::kArgs, place, "args is no object");
  } else {
    CheckValue(place, eventId, metric, entry);
  }
}

/// Checks the one member that the args of a metric have, none where its type is unknown.
void ArgsCheck::CheckValue(const Place& place, std::string_view eventId, const MetricEntry& metric,
                           const LogEntry& entry) {
  rules_.members.clear();
  if (const std::optional<Want> want = WantOf(metric[kType])) {
    rules_.members.push_back({metric[kName], *want});
  }
  members_.Check(place, rules_, entry.args, privacy_.IsMasked(eventId));
}

void ArgsCheck::CheckAny(const Place& place, std::string_view eventId, const LogEntry& entry) {
  keys_.clear();
  for (const Member& member : entry.args) {
    keys_.push_back(member.key);
  }
  std::sort(keys_.begin(), keys_.end());
  const auto twice = std::adjacent_find(keys_.begin(), keys_.end());
  if (twice != keys_.end()) {
    findings_.Add(FindingKind::kDuplicateKey, place,
                  fmt::format("{} is there more than once",
                              privacy_.IsMasked(eventId) ? std::string(kMask) : Shortened(*twice)));
  }
}

}  // namespace vmetrics
