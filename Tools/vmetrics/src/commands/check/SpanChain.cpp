#include "SpanChain.h"

#include <fmt/format.h>

#include <optional>

#include "NameList.h"

namespace vmetrics {

namespace {

constexpr std::string_view kPlaceholder = "ParentSpanId";

}  // namespace

void SpanChain::AddSpan(const Place& place, std::string_view spanId) {
  const std::optional<SpanId> id = ParseSpanId(spanId);
  if (!id) {
    findings_.Add(FindingKind::kSpanForm, place,
                  fmt::format("spanId \"{}\" is not of the form of spans", Shortened(spanId)));
  } else if (const Place* first = spans_.Find(*id)) {
    findings_.Add(
        FindingKind::kDuplicateSpan, place,
        fmt::format("spanId {} is that of {}, too", ToText(*id), findings_.Describe(*first)));
  } else {
    spans_.Add(*id, place);
  }
}

void SpanChain::AddParent(const Place& place, std::string_view parentSpanId) {
  const std::optional<SpanId> parent = ParseSpanId(parentSpanId);
  if (parentSpanId == kPlaceholder) {
    findings_.Add(FindingKind::kUnlockedParent, place,
                  "the span file could not be locked, so the parent is not known");
  } else if (!parent) {
    findings_.Add(
        FindingKind::kSpanForm, place,
        fmt::format("parentSpanId \"{}\" is not of the form of spans", Shortened(parentSpanId)));
  } else if (spans_.Find(*parent) == nullptr && findings_.AreWanted(FindingKind::kMissingParent)) {
    open_.push_back({*parent, place});
  }
}

void SpanChain::Finish() {
  for (const Link& link : open_) {
    if (spans_.Find(link.parent) == nullptr) {
      findings_.Add(FindingKind::kMissingParent, link.place,
                    fmt::format("no step here has the parent's span {}", ToText(link.parent)));
    }
  }
}

}  // namespace vmetrics
