#include "MemberCheck.h"

#include <fmt/format.h>

#include <algorithm>

#include "NameList.h"

namespace vmetrics {

namespace {

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
