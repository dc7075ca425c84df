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
    case Want::Anything:
      return true;
    case Want::Text:
      return member.kind == JsonKind::String;
    case Want::NonEmptyText:
      return member.kind == JsonKind::String && !member.text.empty();
    case Want::NumberText:
      return member.kind == JsonKind::String && IsNumberText(member.text);
    case Want::ZeroText:
      return member.kind == JsonKind::String && member.text == "0";
    case Want::TwoText:
      return member.kind == JsonKind::String && member.text == "2";
    case Want::Int:
      return IsInt(member);
    case Want::Int64:
      return member.Integer().has_value();
    case Want::Uint64:
      return member.Unsigned().has_value();
    case Want::Double:  // The null is what becomes of a NaN.
      return member.kind == JsonKind::Number || member.kind == JsonKind::Null;
    case Want::Boolean:
      return member.kind == JsonKind::Boolean;
    case Want::Object:
      return member.kind == JsonKind::Object;
  }
  return false;
}

std::string_view NameOf(Want want) {
  switch (want) {
    case Want::Anything:
      break;
    case Want::Text:
      return "a text";
    case Want::NonEmptyText:
      return "a text of at least one character";
    case Want::NumberText:
      return "the text of a 32-bit number";
    case Want::ZeroText:
      return "\"0\"";
    case Want::TwoText:
      return "\"2\"";
    case Want::Int:
      return "a 32-bit number";
    case Want::Int64:
      return "a 64-bit number";
    case Want::Uint64:
      return "an unsigned 64-bit number";
    case Want::Double:
      return "a number or null";
    case Want::Boolean:
      return "true or false";
    case Want::Object:
      return "an object";
  }
  return "anything";
}

std::string_view NameOf(JsonKind kind) {
  switch (kind) {
    case JsonKind::Null:
      return "null";
    case JsonKind::Boolean:
      return "true or false";
    case JsonKind::Number:
      return "a number";
    case JsonKind::String:
      return "a text";
    case JsonKind::Object:
      return "an object";
    case JsonKind::Array:
      return "an array";
  }
  return "nothing";
}

std::string Describe(const Member& member, bool isMasked) {
  if (member.kind == JsonKind::Object || member.kind == JsonKind::Array) {
    return std::string(NameOf(member.kind));
  }
  if (isMasked && member.kind != JsonKind::Null) {
    return fmt::format("{} ({})", NameOf(member.kind), kMask);
  }
  return member.kind == JsonKind::String ? '"' + Shortened(member.text) + '"'
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
    findings_.Add(FindingKind::DuplicateKey, place,
                  fmt::format("{} is there more than once", Shortened(repeated->key)));
  }
}

}  // namespace vmetrics
