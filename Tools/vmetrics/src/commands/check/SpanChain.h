/// How steps hang together: each has a span of its own, and its parent's is that of another step.
#ifndef VMETRICS_TOOL_SPANCHAIN_H_
#define VMETRICS_TOOL_SPANCHAIN_H_

#include <string_view>
#include <vector>

#include "Findings.h"
#include "SpanId.h"
#include "SpanTable.h"

namespace vmetrics {

class SpanChain {
 public:
  explicit SpanChain(Findings& findings) : findings_(findings) {}

  /// Takes the span of a step.
  void AddSpan(const Place& place, std::string_view spanId);

  /// Takes the parent's span of a step.
  void AddParent(const Place& place, std::string_view parentSpanId);

  /// Looks for the parents that had not come before their steps; to be called once, after the last.
  /// Processes write at the same time, so a parent may stand behind its step.
  void Finish();

 private:
  struct Link {
    SpanId parent;
    Place place;
  };

  Findings& findings_;
  SpanTable spans_;
  std::vector<Link> open_;  ///< Steps whose parents have not come yet.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_SPANCHAIN_H_
