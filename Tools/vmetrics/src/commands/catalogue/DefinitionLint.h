/// What there is to say about a definition before a product ships it.
#ifndef VMETRICS_TOOL_DEFINITIONLINT_H_
#define VMETRICS_TOOL_DEFINITIONLINT_H_

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "DefinitionText.h"
#include "LogReader.h"
#include "VMetrics.h"

namespace vmetrics {

/// A reason why a line is refused or may surprise, fit for a terminal.
struct LintFinding {
  const char* rule;  ///< Its short name, for those who pick.
  std::string reason;
};

/// What a definition became.
struct DefinitionVerdict {
  bool isRefused = false;
  std::vector<LintFinding> findings;  ///< Of a refused one the first is why.
  // What the catalogue holds now; of a refused definition nothing.
  std::string eventId;  ///< As metrics lines show it.
  int id = 0;           ///< Of a numeric one.
  const MetricEntry* entry = nullptr;
};

/// Has the library register definitions one after the other, and looks at each.
class DefinitionLinter {
 public:
  /// Takes what is in the catalogue now as built in.
  DefinitionLinter();

  /// `line` as ReadDefinitions gives it.
  DefinitionVerdict Lint(DefinitionKind kind, const LinePlace& place, std::string_view line);

 private:
  std::string Refusal(DefinitionKind kind, std::string_view line) const;
  std::string NameClash(int id, const MetricEntry& entry) const;
  std::string NameClash(const std::string& eventId, const MetricEntry& entry) const;
  void LookAtStored(DefinitionKind kind, const LinePlace& place, std::string_view id,
                    DefinitionVerdict& verdict);

  // Where definitions came from; nothing about those that are built in.
  std::map<int, std::string> places_;
  std::map<std::string, std::string> eventPlaces_;
  // Which metrics have a name.
  std::unordered_map<std::string, std::vector<int>> named_;
  std::unordered_map<std::string, std::string> namedEvents_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_DEFINITIONLINT_H_
