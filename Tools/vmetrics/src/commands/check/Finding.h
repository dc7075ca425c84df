/// What can be wrong with a metrics log.
#ifndef VMETRICS_TOOL_FINDING_H_
#define VMETRICS_TOOL_FINDING_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vmetrics {

enum class FindingKind : std::uint8_t {
  kNotJson,
  kGlued,
  kTooLong,
  kNoRecord,
  kMember,
  kExtraMember,
  kDuplicateKey,
  kUnknownId,
  kArgs,
  kNoArgs,
  kSpanForm,
  kDuplicateSpan,
  kTime,
  kUsedTime,
  kIsSuccess,
  kParentStep,
  kUnlockedParent,
  kMissingParent
};

struct FindingKindText {
  std::string_view name;
  std::string_view meaning;
};

/// By kind.
constexpr std::array<FindingKindText, 18> kFindingKinds{{
    {"not-json", "a line without any JSON object"},
    {"glued", "a record that shares its line with another one or a fragment"},
    {"too-long", "a line that is longer than records can be"},
    {"no-record", "a JSON object that is no record of the library"},
    {"member", "a member that is missing, of a wrong type or of a wrong value"},
    {"extra-member", "a member that does not belong to its record"},
    {"duplicate-key", "two members of one name"},
    {"unknown-id", "a metric that the catalogue lacks"},
    {"args", "a value that does not fit its metric's entry in the catalogue"},
    {"no-args", "a metric without its value"},
    {"span-form", "an identifier of a span that is not 36 characters of the right form"},
    {"duplicate-span", "two steps with one span identifier"},
    {"time", "a step that ends before it starts"},
    {"used-time", "a usedTime that is not the time from start to end"},
    {"is-success", "an isSuccess that contradicts errorCode"},
    {"parent-step", "a parentStepName where there should be none, or none where there should"},
    {"unlocked-parent", "a step whose parent is not known, as the span file could not be locked"},
    {"missing-parent", "a step whose parent is not in the logs"},
}};

constexpr const FindingKindText& TextOf(FindingKind kind) {
  return kFindingKinds[static_cast<std::size_t>(kind)];
}

/// Where something stands in the logs.
struct Place {
  std::uint64_t file : 24;  ///< Of those that are read, from 0.
  std::uint64_t line : 40;  ///< From 1.

  bool operator==(const Place& other) const { return file == other.file && line == other.line; }
  bool operator<(const Place& other) const {
    return file != other.file ? file < other.file : line < other.line;
  }
};

struct Finding {
  FindingKind kind;
  Place place;
  std::string message;  ///< Fit for a terminal.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_FINDING_H_
