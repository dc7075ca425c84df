#include "catalogue/DefinitionLint.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "MetricId.h"
#include "Text.h"
#include "catalogue/LineRules.h"

namespace vmetrics {

namespace {

/// ", built in" or ", defined at FILE:LINE".
template <typename Key>
std::string OriginOf(const Key& key, const std::map<Key, std::string>& places) {
  const auto place = places.find(key);
  return place == places.end() ? ", built in" : ", defined at " + place->second;
}

/// Whether the two are what the client and the server say about one thing.
bool AreCounterparts(int one, int other) {
  return GroupOf(one) == GroupOf(other) && SideOf(one) != SideOf(other) &&
         !NameOfSide(SideOf(one)).empty() && !NameOfSide(SideOf(other)).empty();
}

}  // namespace

DefinitionLinter::DefinitionLinter() {
  for (const auto& [id, entry] : VMetrics::GetMetricsMap()) {
    named_[entry.at(1)].push_back(id);
  }
  for (const auto& [eventId, entry] : VMetrics::GetMetricsStringMap()) {
    namedEvents_.emplace(entry.at(1), eventId);
  }
}

DefinitionVerdict DefinitionLinter::Lint(DefinitionKind kind, const LinePlace& place,
                                         std::string_view line) {
  DefinitionVerdict verdict;
  std::string refusal = Refusal(kind, line);
  verdict.isRefused = RegisterDefinition(kind, line) != VMETRICS_OK;
  if (verdict.isRefused) {
    verdict.findings.push_back({"refused", std::move(refusal)});
  }
  std::vector<LintFinding> inLine = FindingsInLine(kind, place.number, line);
  std::move(inLine.begin(), inLine.end(), std::back_inserter(verdict.findings));
  if (!verdict.isRefused) {
    LookAtStored(kind, place, DefinitionFields(line).id, verdict);
  }
  return verdict;
}

std::string DefinitionLinter::Refusal(DefinitionKind kind, std::string_view line) const {
  std::string refusal = RefusalOf(kind, line);
  const DefinitionFields fields(line);
  if (refusal.empty() || fields.count < 4) {
    return refusal;
  }
  if (kind == DefinitionKind::kEvent) {
    return refusal + OriginOf(std::string(fields.id), eventPlaces_);
  }
  const int id = DecimalId(fields.id).key;
  return id == 0 ? refusal : refusal + OriginOf(id, places_);
}

void DefinitionLinter::LookAtStored(DefinitionKind kind, const LinePlace& place,
                                    std::string_view id, DefinitionVerdict& verdict) {
  const std::string where = fmt::format("{}:{}", Printable(place.file), place.number);
  std::string clash;
  if (kind == DefinitionKind::kNumeric) {
    verdict.id = DecimalId(id).key;
    verdict.eventId = fmt::to_string(verdict.id);
    verdict.entry = &VMetrics::GetMetricsMap().at(verdict.id);
    clash = NameClash(verdict.id, *verdict.entry);
    places_.emplace(verdict.id, where);
    named_[verdict.entry->at(1)].push_back(verdict.id);
  } else {
    verdict.eventId = id;
    verdict.entry = &VMetrics::GetMetricsStringMap().at(verdict.eventId);
    clash = NameClash(verdict.eventId, *verdict.entry);
    eventPlaces_.emplace(verdict.eventId, where);
    namedEvents_.emplace(verdict.entry->at(1), verdict.eventId);
  }
  if (!clash.empty()) {
    verdict.findings.push_back({"name-clash", std::move(clash)});
  }
}

std::string DefinitionLinter::NameClash(int id, const MetricEntry& entry) const {
  const auto named = named_.find(entry.at(1));
  if (named == named_.end()) {
    return {};
  }
  for (const int other : named->second) {
    const std::string& type = VMetrics::GetMetricsMap().at(other).at(0);
    if (!AreCounterparts(id, other) || type != entry.at(0)) {
      return fmt::format("the name \"{}\" is also that of {} ({}){}", Printable(entry.at(1)),
                         HexadecimalId(other), Printable(type), OriginOf(other, places_));
    }
  }
  return {};
}

std::string DefinitionLinter::NameClash(const std::string& eventId,
                                        const MetricEntry& entry) const {
  const auto named = namedEvents_.find(entry.at(1));
  return named == namedEvents_.end() || named->second == eventId
             ? std::string()
             : fmt::format("the name \"{}\" is also that of \"{}\"{}", Printable(entry.at(1)),
                           Printable(named->second), OriginOf(named->second, eventPlaces_));
}

}  // namespace vmetrics
