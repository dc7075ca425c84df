/// Identifiers of spans.
#ifndef VMETRICS_TOOL_SPANID_H_
#define VMETRICS_TOOL_SPANID_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vmetrics {

/// The 128 bits of an identifier.
struct SpanId {
  std::uint64_t high;
  std::uint64_t low;

  bool operator==(const SpanId& other) const { return high == other.high && low == other.low; }
};

/// The identifier that `text` is, if it has the form that the library gives them:
/// e4087119-7420-0031-4962-ce575d58c9b8.
std::optional<SpanId> ParseSpanId(std::string_view text);

std::string ToText(const SpanId& id);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_SPANID_H_
