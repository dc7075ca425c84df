#include "catalogue/LintReport.h"

#include <fmt/format.h>

#include <cstddef>

#include "MetricId.h"
#include "Terminal.h"
#include "Text.h"

namespace vmetrics {

namespace {

void WriteLine(const LinePlace& place, Style style, std::string_view what, std::string_view text) {
  Write(fmt::format("{}:{}: {}: {}\n", Printable(place.file), place.number, Styled(style, what),
                    text));
}

std::string StoredText(DefinitionKind kind, const DefinitionVerdict& verdict) {
  const std::string id = kind == DefinitionKind::kNumeric
                             ? fmt::format("{} ({})", verdict.eventId, HexadecimalId(verdict.id))
                             : fmt::format("\"{}\"", verdict.eventId);
  return Printable(fmt::format("ID {}, type \"{}\", name \"{}\", private \"{}\"", id,
                               verdict.entry->at(0), verdict.entry->at(1), verdict.entry->at(2)));
}

VJson::Value StoredObject(DefinitionKind kind, const DefinitionVerdict& verdict) {
  VJson::Value stored;
  stored.AddJsonValue("eventId", verdict.eventId);
  if (kind == DefinitionKind::kNumeric) {
    stored.AddJsonValue("hexadecimal", HexadecimalId(verdict.id));
  }
  stored.AddJsonValue("type", verdict.entry->at(0));
  stored.AddJsonValue("name", verdict.entry->at(1));
  stored.AddJsonValue("private", verdict.entry->at(2));
  return stored;
}

}  // namespace

void LintReport::Add(DefinitionKind kind, const LinePlace& place,
                     const DefinitionVerdict& verdict) {
  ++definitions_;
  if (verdict.findings.empty()) {
    return;
  }
  ++(verdict.isRefused ? refused_ : surprising_);
  for (std::size_t at = 0; at < verdict.findings.size(); ++at) {
    const LintFinding& finding = verdict.findings[at];
    const bool isRefusal = verdict.isRefused && at == 0;
    if (isJson_) {
      AddObject(kind, place, verdict, finding, isRefusal);
    } else if (isRefusal) {
      WriteLine(place, Style::kRed, "refused", finding.reason);
    } else {
      WriteLine(place, Style::kYellow, "surprise", finding.reason);
    }
  }
  if (!isJson_ && !verdict.isRefused) {
    WriteLine(place, Style::kPlain, "stored", StoredText(kind, verdict));
  }
}

int LintReport::Finish() {
  const bool hasFindings = refused_ + surprising_ > 0;
  if (isJson_) {
    array_.Finish();
  } else if (hasFindings) {
    Write(fmt::format("{}: {} refused, {} with surprises\n", Counted(definitions_, "definition"),
                      refused_, surprising_));
  }
  return hasFindings ? kFindings : kSuccess;
}

void LintReport::AddObject(DefinitionKind kind, const LinePlace& place,
                           const DefinitionVerdict& verdict, const LintFinding& finding,
                           bool isRefusal) {
  VJson::Value object;
  object.AddJsonValue("file", place.file);
  object.AddJsonValue("line", static_cast<unsigned long>(place.number));
  object.AddJsonValue("severity", isRefusal ? "refused" : "surprise");
  object.AddJsonValue("rule", finding.rule);
  object.AddJsonValue("reason", finding.reason);
  if (!verdict.isRefused) {
    object.Add("stored", StoredObject(kind, verdict));
  }
  array_.Add(object);
}

}  // namespace vmetrics
