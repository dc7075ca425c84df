#include "MemberCheck.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <optional>

#include "MetricLookup.h"
#include "NameList.h"
#include "Privacy.h"

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

std::string_view NameOf(JsonKind kind) {
  switch (kind) {
    case JsonKind::kNull:
      return "null";
    case JsonKind::kBoolean:
      return "true or false";
    case JsonKind::kNumber:
      return "a number";
    case JsonKind::kString:
      return "a text";
    case JsonKind::kObject:
      return "an object";
    case JsonKind::kArray:
      return "an array";
  }
  return "nothing";
}

std::string Describe(const Member& member, bool isMasked) {
  if (member.kind == JsonKind::kObject || member.kind == JsonKind::kArray) {
    return std::string(NameOf(member.kind));
  }
  if (isMasked && member.kind != JsonKind::kNull) {
    return fmt::format("{} ({})", NameOf(member.kind), kMask);
  }
  return member.kind == JsonKind::kString ? '"' + Shortened(member.text) + '"'
                                          : Shortened(member.text);
}

/// The place of the rule for `key`, tried first at `guess`; the number of rules where there is
/// none.
std::size_t RuleFor(std::string_view key, const std::vector<MemberRule>& rules, std::size_t guess) {
  if (guess < rules.size() && rules[guess].key == key) {
    return guess;
  }
  const auto found = std::find_if(rules.begin(), rules.end(),
                                  [key](const MemberRule& rule) { return rule.key == key; });
  return static_cast<std::size_t>(found - rules.begin());
}

}  // namespace

const std::vector<const Member*>& MemberCheck::Check(const Place& place, const ObjectRules& rules,
                                                     const std::vector<Member>& members,
                                                     bool isMasked) {
  Assign(place, rules, members, isMasked);
  NameList missing;
  for (std::size_t rule = 0; rule < found_.size(); ++rule) {
    const MemberRule& wanted = rules.members[rule];
    if (found_[rule] == nullptr) {
      if (wanted.isRequired) {
        missing.Add(wanted.key);
      }
    } else if (!IsWanted(*found_[rule], wanted.want)) {
      const bool isHidden = isMasked || (wanted.isUserName && privacy_.AreUserNamesMasked());
      findings_.Add(rules.wrong, place,
                    fmt::format("{} is {}, not {}", Shortened(wanted.key),
                                Describe(*found_[rule], isHidden), NameOf(wanted.want)));
      found_[rule] = nullptr;
    }
  }
  if (!missing.IsEmpty()) {
    findings_.Add(rules.wrong, place, fmt::format("{} lacks {}", rules.name, missing.ToString()));
  }
  return found_;
}

/// Puts the members where their rules are.
void MemberCheck::Assign(const Place& place, const ObjectRules& rules,
                         const std::vector<Member>& members, bool isMasked) {
  found_.assign(rules.members.size(), nullptr);
  NameList extra;
  const Member* repeated = nullptr;
  std::size_t rule = 0;
  for (const Member& member : members) {
    rule = RuleFor(member.key, rules.members, rule);
    if (rule == found_.size()) {
      extra.Add(isMasked ? kMask : member.key);
    } else if (found_[rule] != nullptr) {
      repeated = repeated == nullptr ? &member : repeated;
    } else {
      found_[rule] = &member;
    }
    ++rule;
  }
  if (!extra.IsEmpty()) {
    findings_.Add(rules.extra, place,
                  fmt::format("{}: not part of {}", extra.ToString(), rules.name));
  }
  if (repeated != nullptr) {
    findings_.Add(FindingKind::kDuplicateKey, place,
                  fmt::format("{} is there more than once", Shortened(repeated->key)));
  }
}

}  // namespace vmetrics
