#include "DefinitionText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "MetricId.h"
#include "Text.h"
#include "VMetrics.h"

namespace vmetrics {

namespace {

constexpr char kSeparator = ';';

/// What a C string of these bytes is.
std::string_view UpToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string Described(const MetricEntry& entry) {
  return Printable(fmt::format("{} ({})", entry.at(1), entry.at(0)));
}

/// Why the ID counts as 0, which is none.
std::string RefusalOfZero(const DecimalId& id, std::string_view text) {
  const std::string printable = Printable(text);
  if (id.value != 0) {
    return fmt::format("of the ID {} only the low 32 bits count, which are 0", printable);
  }
  if (const auto hexadecimal = ParseMetricId(text); hexadecimal.value_or(0) != 0) {
    return fmt::format("the ID {} is not decimal: write {}", printable, *hexadecimal);
  }
  return id.isNumber ? fmt::format("the ID \"{}\" counts as 0", printable)
                     : fmt::format("the ID \"{}\" is not a decimal number", printable);
}

std::string NumericRefusal(const DefinitionFields& fields) {
  const DecimalId id(fields.id);
  if (id.key == 0) {
    return RefusalOfZero(id, fields.id);
  }
  const auto taken = VMetrics::GetMetricsMap().find(id.key);
  return taken == VMetrics::GetMetricsMap().end()
             ? std::string()
             : fmt::format("the ID {} ({}) is taken by {}", id.key, HexadecimalId(id.key),
                           Described(taken->second));
}

std::string EventRefusal(const DefinitionFields& fields) {
  const auto taken = VMetrics::GetMetricsStringMap().find(std::string(fields.id));
  return taken == VMetrics::GetMetricsStringMap().end()
             ? std::string()
             : fmt::format("the event ID {} is taken by {}", Printable(fields.id),
                           Described(taken->second));
}

}  // namespace

DefinitionFields::DefinitionFields(std::string_view text) : rest(UpToNul(text)) {
  for (std::string_view* field : {&id, &type, &name, &privateFlag}) {
    const std::size_t begin = std::min(rest.find_first_not_of(kSeparator), rest.size());
    hasEmpty = hasEmpty || begin > 0;
    rest.remove_prefix(begin);
    *field = rest.substr(0, rest.find(kSeparator));
    count += field->empty() ? 0 : 1;
    rest.remove_prefix(std::min(field->size() + 1, rest.size()));
  }
}

DecimalId::DecimalId(std::string_view text) {
  const std::string copy(text);
  char* end = nullptr;
  errno = 0;
  value = std::strtol(copy.c_str(), &end, 10);
  key = static_cast<int>(value);
  isOutOfRange = errno == ERANGE;
  isNumber = end != copy.c_str();
  trailing = text.substr(static_cast<std::size_t>(end - copy.c_str()));
}

int RegisterDefinition(DefinitionKind kind, std::string_view text) {
  std::string writable(text);
  return kind == DefinitionKind::kNumeric
             ? VMetrics::RegisterMetricsDataType(writable.data())
             : VMetrics::RegisterMetricsStringDataType(writable.data());
}

std::string RefusalOf(DefinitionKind kind, std::string_view text) {
  const DefinitionFields fields(text);
  if (fields.count < 4) {
    return fmt::format("{} of the four fields \"ID;type;name;private\", empty ones not counted",
                       fields.count);
  }
  return kind == DefinitionKind::kNumeric ? NumericRefusal(fields) : EventRefusal(fields);
}

}  // namespace vmetrics
