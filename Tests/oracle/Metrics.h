/// What metrics there are, as the oracle knows them.
#ifndef ORACLE_METRICS_H_
#define ORACLE_METRICS_H_

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Oracle {

/// Type, name and private flag. An entry may lack some.
using Metric = std::vector<std::string>;

struct Metrics {
  std::map<std::int32_t, Metric> numbered;
  std::map<std::string, Metric> named;
};

/// The built-in ones, from the tables in Tests/golden. Throws if they cannot be read.
Metrics BuiltInMetrics();

}  // namespace Oracle

#endif  // ORACLE_METRICS_H_
