/// Compares a line with the rules of its kind of record.
#ifndef VMETRICS_TOOL_RECORDCHECK_H_
#define VMETRICS_TOOL_RECORDCHECK_H_

#include "ArgsCheck.h"
#include "Findings.h"
#include "LogEntry.h"
#include "MemberCheck.h"
#include "Privacy.h"
#include "StepCheck.h"

namespace vmetrics {

class RecordCheck {
 public:
  RecordCheck(const Privacy& privacy, Findings& findings)
      : privacy_(privacy),
        findings_(findings),
        members_(privacy, findings),
        args_(privacy, findings),
        steps_(privacy, findings) {}

  void Check(const Place& place, const LogEntry& entry);

  /// To be called once, after the last line.
  void Finish() { steps_.Finish(); }

 private:
  void CheckNumeric(const Place& place, const LogEntry& entry);
  void CheckEvent(const Place& place, const LogEntry& entry);

  const Privacy& privacy_;
  Findings& findings_;
  MemberCheck members_;
  ArgsCheck args_;
  StepCheck steps_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDCHECK_H_
