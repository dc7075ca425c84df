// The catalogue: two maps that live as long as the library, and the definition strings that add to
// them.

#include <cstdlib>
#include <utility>

#include "BoundsChecked.h"
#include "Common/Log.h"
#include "VMetrics.h"
#include "VMetrics/BuiltInMetrics.h"

namespace vmetrics {
namespace {

template <typename Map, typename Rows>
Map MakeCatalogue(const Rows& rows) {
  Map catalogue;
  for (const auto& row : rows) {
    catalogue.emplace(row.key, MetricEntry{row.type, row.name, row.privateFlag});
  }
  return catalogue;
}

// Built when the library is loaded, before anybody can call a function of it, and destroyed when it
// is unloaded, the later one first.
MetricsMap metricsMap = MakeCatalogue<MetricsMap>(kBuiltInMetrics);
MetricsStringMap metricsStringMap = MakeCatalogue<MetricsStringMap>(kBuiltInEvents);

/// The fields of a definition string, pointing into it.
struct Definition {
  const char* id;
  const char* type;
  const char* name;
  const char* privateFlag;
};

/// Cuts `msg` up; false, with a line logged for `function`, when it is null or lacks a field.
bool SplitDefinition(char* msg, const char* function, Definition& definition) {
  if (msg == nullptr) {
    VMETRICS_LOG_AS(kVMetricsSource, function, kLogError, "msg is null");
    return false;
  }
  char* rest = nullptr;
  const auto next = [&rest](const char* previous) -> const char* {
    return previous == nullptr ? nullptr : strtok_s(nullptr, ";", &rest);
  };
  definition.id = strtok_s(msg, ";", &rest);
  definition.type = next(definition.id);
  definition.name = next(definition.type);
  definition.privateFlag = next(definition.name);
  if (definition.privateFlag == nullptr) {
    VMETRICS_LOG_AS(kVMetricsSource, function, kLogError, "strtok_s parse failed");
    return false;
  }
  return true;
}

/// Adds an entry for `function`, unless its key is not valid or taken.
template <typename Map>
int Store(Map& catalogue, const typename Map::key_type& key, bool valid,
          const Definition& definition, const char* function) {
  const auto position = catalogue.lower_bound(key);
  const bool taken = position != catalogue.end() && position->first == key;
  if (!valid || taken) {
    VMETRICS_LOG_AS(kVMetricsSource, function, kLogError, "msg id invalid or has existed");
    return VMETRICS_INVALID;
  }
  MetricEntry entry{definition.type, definition.name, definition.privateFlag};
  VMETRICS_LOG_AS(kVMetricsSource, function, kLogInformation,
                  "parse msg success, id = %s, type : %s, name : %s, private : %s", definition.id,
                  definition.type, definition.name, definition.privateFlag);
  catalogue.emplace_hint(position, key, std::move(entry));
  return VMETRICS_OK;
}

}  // namespace
}  // namespace vmetrics

MetricsMap& VMetrics::GetMetricsMap() { return vmetrics::metricsMap; }

MetricsStringMap& VMetrics::GetMetricsStringMap() { return vmetrics::metricsStringMap; }

int VMetrics::RegisterMetricsDataType(char* msg) {
  vmetrics::Definition definition;
  if (!vmetrics::SplitDefinition(msg, __func__, definition)) {
    return VMETRICS_INVALID;
  }
  // IDs are 32 bits wide; what a definition has beyond them does not count.
  const int key = static_cast<int>(std::strtol(definition.id, nullptr, 10));
  return vmetrics::Store(vmetrics::metricsMap, key, key != 0, definition, __func__);
}

int VMetrics::RegisterMetricsStringDataType(char* msg) {
  vmetrics::Definition definition;
  if (!vmetrics::SplitDefinition(msg, __func__, definition)) {
    return VMETRICS_INVALID;
  }
  return vmetrics::Store(vmetrics::metricsStringMap, definition.id, true, definition, __func__);
}
