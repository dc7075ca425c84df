#include "Want.h"

#include <limits>
#include <optional>

#include "MetricLookup.h"

namespace vmetrics {

namespace {

/// Whether `text` is that of an int as the library writes it: without leading zeros.
bool IsNumberText(std::string_view text) {
  const std::string_view digits = text.substr(text.substr(0, 1) == "-" ? 1 : 0);
  return NumericId(text) && (digits.front() != '0' || text == "0");
}

bool IsInt(const Member& member) {
  using Limits = std::numeric_limits<int>;
  const std::optional<std::int64_t> number = member.Integer();
  return number && *number >= Limits::min() && *number <= Limits::max();
}

}  // namespace

bool IsWanted(const Member& member, Want want) {
  switch (want) {
    case Want::kAnything:
      return true;
    case Want::kText:
      return member.kind == JsonKind::kString;
    case Want::kNonEmptyText:
      return member.kind == JsonKind::kString && !member.text.empty();
    case Want::kNumberText:
      return member.kind == JsonKind::kString && IsNumberText(member.text);
    case Want::kZeroText:
      return member.kind == JsonKind::kString && member.text == "0";
    case Want::kTwoText:
      return member.kind == JsonKind::kString && member.text == "2";
    case Want::kInt:
      return IsInt(member);
    case Want::kInt64:
      return member.Integer().has_value();
    case Want::kUint64:
      return member.Unsigned().has_value();
    case Want::kDouble:  // The null is what becomes of a NaN.
      return member.kind == JsonKind::kNumber || member.kind == JsonKind::kNull;
    case Want::kBoolean:
      return member.kind == JsonKind::kBoolean;
    case Want::kObject:
      return member.kind == JsonKind::kObject;
  }
  return false;
}

std::string_view NameOf(Want want) {
  switch (want) {
    case Want::kAnything:
      break;
    case Want::kText:
      return "a text";
    case Want::kNonEmptyText:
      return "a text of at least one character";
    case Want::kNumberText:
      return "the text of a 32-bit number";
    case Want::kZeroText:
      return "\"0\"";
    case Want::kTwoText:
      return "\"2\"";
    case Want::kInt:
      return "a 32-bit number";
    case Want::kInt64:
      return "a 64-bit number";
    case Want::kUint64:
      return "an unsigned 64-bit number";
    case Want::kDouble:
      return "a number or null";
    case Want::kBoolean:
      return "true or false";
    case Want::kObject:
      return "an object";
  }
  return "anything";
}

}  // namespace vmetrics
