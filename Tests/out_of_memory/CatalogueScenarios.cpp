#include <string>

#include "Host.h"
#include "Scenario.h"

namespace {

constexpr char kRegisterMetric[] = "VMetrics::RegisterMetricsDataType(char*)";
constexpr char kRegisterEvent[] = "VMetrics::RegisterMetricsStringDataType(char*)";

std::string AddLongMetric() {
  char definition[] = "881;a type that is too long for it;a name that is too long for it;0";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string AddShortMetric() {
  char definition[] = "881;int;n;0";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string AddMetricTwice() {
  char definition[] = "302645248;a type that is too long for it;a name that is too long for it;0";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string AddMetricWithoutId() {
  char definition[] = "none;int;n;0";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string AddMetricWithoutFlag() {
  char definition[] = "881;int;n";
  return std::to_string(VMetrics::RegisterMetricsDataType(definition));
}

std::string AddNoMetric() { return std::to_string(VMetrics::RegisterMetricsDataType(nullptr)); }

std::string AddLongEvent() {
  char definition[] = "an event that is too long for it;a type that is too long for it;a name;0";
  return std::to_string(VMetrics::RegisterMetricsStringDataType(definition));
}

std::string AddShortEvent() {
  char definition[] = "e;int;n;0";
  return std::to_string(VMetrics::RegisterMetricsStringDataType(definition));
}

std::string AddLongEventTwice() {
  char definition[] = "AN_EVENT_THAT_CARRIES_TEXT;int;n;0";
  return std::to_string(VMetrics::RegisterMetricsStringDataType(definition));
}

std::string AddEventWithoutFlag() {
  char definition[] = "an event that is too long for it;int;n";
  return std::to_string(VMetrics::RegisterMetricsStringDataType(definition));
}

std::string AddNoEvent() {
  return std::to_string(VMetrics::RegisterMetricsStringDataType(nullptr));
}

std::string GetMetrics() { return VMetrics::GetMetricsMap().empty() ? "empty" : "there"; }

std::string GetEvents() { return VMetrics::GetMetricsStringMap().empty() ? "empty" : "there"; }

/// A definition is read and told before the entry is put into the catalogue.
std::vector<std::string> SaidThenAdded(const std::string& said) {
  return {"bad_alloc", "bad_alloc; says " + said, "0; says " + said + "; entry"};
}

}  // namespace

std::vector<Scenario> CatalogueScenarios() {
  const std::string longTexts =
      ", type : a type that is too long for it, name : a name that is too long for it, private : 0";
  return {
      {"AddLongMetric", kRegisterMetric, AddLongMetric, Nothing, NothingToAsk,
       SaidThenAdded("parse msg success, id = 881" + longTexts)},
      {"AddShortMetric", kRegisterMetric, AddShortMetric, Nothing, NothingToAsk,
       SaidThenAdded("parse msg success, id = 881, type : int, name : n, private : 0")},
      {"AddMetricTwice",
       kRegisterMetric,
       AddMetricTwice,
       Nothing,
       NothingToAsk,
       {"-9999; says msg id invalid or has existed"}},
      {"AddMetricWithoutId",
       kRegisterMetric,
       AddMetricWithoutId,
       Nothing,
       NothingToAsk,
       {"-9999; says msg id invalid or has existed"}},
      {"AddMetricWithoutFlag",
       kRegisterMetric,
       AddMetricWithoutFlag,
       Nothing,
       NothingToAsk,
       {"-9999; says strtok_s parse failed"}},
      {"AddNoMetric",
       kRegisterMetric,
       AddNoMetric,
       Nothing,
       NothingToAsk,
       {"-9999; says msg is null"}},

      {"AddLongEvent", kRegisterEvent, AddLongEvent, Nothing, NothingToAsk,
       SaidThenAdded("parse msg success, id = an event that is too long for it, "
                     "type : a type that is too long for it, name : a name, private : 0")},
      {"AddShortEvent", kRegisterEvent, AddShortEvent, Nothing, NothingToAsk,
       SaidThenAdded("parse msg success, id = e, type : int, name : n, private : 0")},
      {"AddLongEventTwice", kRegisterEvent, AddLongEventTwice, Nothing, NothingToAsk,
       NothingOr("-9999; says msg id invalid or has existed")},
      {"AddEventWithoutFlag",
       kRegisterEvent,
       AddEventWithoutFlag,
       Nothing,
       NothingToAsk,
       {"-9999; says strtok_s parse failed"}},
      {"AddNoEvent",
       kRegisterEvent,
       AddNoEvent,
       Nothing,
       NothingToAsk,
       {"-9999; says msg is null"}},

      {"GetMetrics", "VMetrics::GetMetricsMap()", GetMetrics, Nothing, NothingToAsk, {"there"}},
      {"GetEvents", "VMetrics::GetMetricsStringMap()", GetEvents, Nothing, NothingToAsk, {"there"}},
  };
}
