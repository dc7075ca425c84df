/// The metrics of random records: the built-in ones and one of each type under either kind of ID.
#ifndef RANDOMMETRICS_H_
#define RANDOMMETRICS_H_

#include <stdexcept>
#include <string>

#include "Metrics.h"
#include "VMetrics.h"

/// Enters a metric through its definition string in the library's catalogue and in the oracle's.
inline void Register(int id, const std::string& type, Oracle::Metrics& metrics) {
  const std::string name = "a " + type + " \"of\\\t\xFF%s\u00E9";
  const std::string event = "RANDOM_" + type;
  std::string numbered = std::to_string(id) + ";" + type + ";" + name + ";0";
  std::string named = event + ";" + type + ";" + name + ";1";
  if (VMetrics::RegisterMetricsDataType(numbered.data()) != VMETRICS_OK ||
      VMetrics::RegisterMetricsStringDataType(named.data()) != VMETRICS_OK) {
    throw std::runtime_error("cannot register " + type);
  }
  metrics.numbered[id] = {type, name, "0"};
  metrics.named[event] = {type, name, "1"};
}

inline Oracle::Metrics RandomMetrics() {
  Oracle::Metrics metrics = Oracle::BuiltInMetrics();
  int id = -1000;
  for (const char* type :
       {"string", "int", "uint64_t", "int64_t", "double", "bool", "enum", "json", "unknown"}) {
    Register(id, type, metrics);
    id += 777777777 / 9;
  }
  return metrics;
}

#endif  // RANDOMMETRICS_H_
