/// Writes what the linter found to standard output.
#ifndef VMETRICS_TOOL_LINTREPORT_H_
#define VMETRICS_TOOL_LINTREPORT_H_

#include <cstdint>

#include "JsonArray.h"
#include "catalogue/DefinitionLint.h"

namespace vmetrics {

class LintReport {
 public:
  /// `isJson`: for programs, an array with an object for each finding; otherwise for people.
  explicit LintReport(bool isJson) : isJson_(isJson) {}

  void Add(DefinitionKind kind, const LinePlace& place, const DefinitionVerdict& verdict);

  /// Returns the exit status.
  int Finish();

 private:
  void AddObject(DefinitionKind kind, const LinePlace& place, const DefinitionVerdict& verdict,
                 const LintFinding& finding, bool isRefusal);

  const bool isJson_;
  JsonArray array_;
  std::uint64_t definitions_ = 0;
  std::uint64_t refused_ = 0;
  std::uint64_t surprising_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LINTREPORT_H_
