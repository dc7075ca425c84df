#include "StepTimes.h"

#include <fmt/format.h>

#include <cstdint>
#include <optional>
#include <string>

#include "Privacy.h"

namespace vmetrics {

namespace {

std::optional<std::uint64_t> TimeOf(const Member* member) {
  return member != nullptr ? member->Unsigned() : std::nullopt;
}

std::string Shown(std::uint64_t time, bool isMasked) {
  return isMasked ? std::string(kMask) : std::to_string(time);
}

}  // namespace

void CheckTimes(const Place& place, const StepTimes& times, bool isMasked, Findings& findings) {
  const std::optional<std::uint64_t> start = TimeOf(times.start);
  const std::optional<std::uint64_t> end = TimeOf(times.end);
  const std::optional<std::uint64_t> used = TimeOf(times.used);
  if (start && end && *end < *start) {
    findings.Add(FindingKind::kTime, place,
                 fmt::format("ends {} ms before it starts", Shown(*start - *end, isMasked)));
  }
  // Of such a step usedTime is just below 2^64: the library's subtraction is unsigned, as is this.
  if (start && end && used && *used != *end - *start) {
    findings.Add(FindingKind::kUsedTime, place,
                 fmt::format("usedTime is {}, but from start to end it is {}",
                             Shown(*used, isMasked), Shown(*end - *start, isMasked)));
  }
}

}  // namespace vmetrics
