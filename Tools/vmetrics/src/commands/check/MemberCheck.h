/// Compares the members of a JSON object with those that it should have.
#ifndef VMETRICS_TOOL_MEMBERCHECK_H_
#define VMETRICS_TOOL_MEMBERCHECK_H_

#include <string>
#include <string_view>
#include <vector>

#include "Findings.h"
#include "LogEntry.h"
#include "Privacy.h"
#include "Want.h"

namespace vmetrics {

struct MemberRule {
  std::string_view key;
  Want want;
  bool isRequired = true;
  bool isUserName = false;
};

struct ObjectRules {
  std::string_view name;            ///< Of the object, in messages: "the step record".
  std::vector<MemberRule> members;  ///< All that there may be, best in their usual order.
  FindingKind wrong = FindingKind::kMember;
  FindingKind extra = FindingKind::kExtraMember;
};

class MemberCheck {
 public:
  MemberCheck(const Privacy& privacy, Findings& findings)
      : privacy_(privacy), findings_(findings) {}

  /// Adds what is wrong with `members` to the findings; with `isMasked`, none of
  /// their values.
  ///
  /// Returns the members in the order of the rules, null for each that is missing or wrong. Good
  /// until the next call.
  const std::vector<const Member*>& Check(const Place& place, const ObjectRules& rules,
                                          const std::vector<Member>& members,
                                          bool isMasked = false);

 private:
  void Assign(const Place& place, const ObjectRules& rules, const std::vector<Member>& members,
              bool isMasked);

  const Privacy& privacy_;
  Findings& findings_;
  std::vector<const Member*> found_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_MEMBERCHECK_H_
