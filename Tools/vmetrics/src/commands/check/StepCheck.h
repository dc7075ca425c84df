/// Compares a line with the rules of step records.
#ifndef VMETRICS_TOOL_STEPCHECK_H_
#define VMETRICS_TOOL_STEPCHECK_H_

#include <vector>

#include "Findings.h"
#include "LogEntry.h"
#include "MemberCheck.h"
#include "Privacy.h"
#include "SpanChain.h"

namespace vmetrics {

class StepCheck {
 public:
  StepCheck(const Privacy& privacy, Findings& findings)
      : privacy_(privacy), findings_(findings), members_(privacy, findings), chain_(findings) {}

  void Check(const Place& place, const LogEntry& entry);

  /// To be called once, after the last line.
  void Finish() { chain_.Finish(); }

 private:
  void CheckArgs(const Place& place, const LogEntry& entry, bool isMasked);

  const Privacy& privacy_;
  Findings& findings_;
  MemberCheck members_;
  SpanChain chain_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STEPCHECK_H_
