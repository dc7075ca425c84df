/// Compares the "args" of a line with what the catalogue says of its metric.
#ifndef VMETRICS_TOOL_ARGSCHECK_H_
#define VMETRICS_TOOL_ARGSCHECK_H_

#include <VMetrics.h>

#include <string_view>
#include <vector>

#include "Findings.h"
#include "LogEntry.h"
#include "MemberCheck.h"
#include "Privacy.h"

namespace vmetrics {

class ArgsCheck {
 public:
  ArgsCheck(const Privacy& privacy, Findings& findings)
      : privacy_(privacy), findings_(findings), members_(privacy, findings) {}

  /// Of a line whose `eventId` is that of `metric`.
  void Check(const Place& place, std::string_view eventId, const MetricEntry& metric,
             const LogEntry& entry);

  /// Of a line that may have any: that none of their names stands there twice.
  void CheckAny(const Place& place, std::string_view eventId, const LogEntry& entry);

 private:
  void CheckValue(const Place& place, std::string_view eventId, const MetricEntry& metric,
                  const LogEntry& entry);

  const Privacy& privacy_;
  Findings& findings_;
  MemberCheck members_;
  ObjectRules rules_{"args", {}, FindingKind::kArgs, FindingKind::kArgs};
  std::vector<std::string_view> keys_;  ///< Kept for its memory.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_ARGSCHECK_H_
