#include "catalogue/IdRules.h"

#include <fmt/format.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "MetricId.h"
#include "Text.h"
#include "catalogue/Blanks.h"

namespace vmetrics {

namespace {

/// How a number became another, if it did.
std::string ChangeOf(const DecimalId& id, std::string_view text) {
  if (id.isOutOfRange) {
    return fmt::format(
        "the ID {} is beyond 64 bits and counts as {}, of which the low 32 bits are "
        "{}",
        text, id.value, id.key);
  }
  if (id.value == id.key) {
    return {};
  }
  const bool isUnsigned = id.value > 0 && id.value <= std::numeric_limits<std::uint32_t>::max();
  return fmt::format(isUnsigned ? "the ID {} is beyond 31 bits: metrics lines show it as {}"
                                : "of the ID {} only the low 32 bits count, which are {}",
                     text, id.key);
}

std::string BreachOfConvention(int id) {
  const unsigned int group = GroupOf(id);
  const unsigned int side = SideOf(id);
  std::vector<std::string> breaches;
  if (TitleOfGroup(group).empty()) {
    breaches.push_back(
        fmt::format("the group {} is none of the built-in metrics'", HexadecimalByte(group)));
  }
  if (NameOfSide(side).empty()) {
    breaches.push_back(fmt::format("the side {} is neither 0x0B (client) nor 0x0A (server)",
                                   HexadecimalByte(side)));
  }
  return breaches.empty() ? std::string()
                          : fmt::format("the ID {} does not follow the convention: {}",
                                        HexadecimalId(id), fmt::join(breaches, ", "));
}

}  // namespace

std::vector<LintFinding> FindingsInId(std::string_view text) {
  const DecimalId id(text);
  std::vector<LintFinding> findings;
  if (id.key == 0) {
    return findings;
  }
  const std::string_view trailing = WithoutBlanks(id.trailing);
  const std::string number =
      Printable(WithoutBlanks(text.substr(0, text.size() - id.trailing.size())));
  const auto add = [&findings](const char* rule, std::string reason) {
    if (!reason.empty()) {
      findings.push_back({rule, std::move(reason)});
    }
  };
  if (!trailing.empty()) {
    add("id-trailing", fmt::format("what follows the number {} does not count: \"{}\"", number,
                                   Printable(trailing)));
  }
  add("id-range", ChangeOf(id, number));
  if (id.value < 0) {
    add("id-negative",
        fmt::format("the ID {} is negative: in a record it is {}", number, HexadecimalId(id.key)));
  }
  if (id.key > 0) {
    add("id-convention", BreachOfConvention(id.key));
  }
  return findings;
}

}  // namespace vmetrics
