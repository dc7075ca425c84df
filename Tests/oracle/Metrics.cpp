#include "Metrics.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Oracle {
namespace {

/// Hands each row of a table to `take`, its columns one by one.
template <typename Take>
void ReadTable(const std::string& path, Take take) {
  std::ifstream table(path);
  int rows = 0;
  for (std::string row; std::getline(table, row); ++rows) {
    std::istringstream columns(row);
    Metric metric;
    for (std::string column; std::getline(columns, column, '\t');) {
      metric.push_back(column);
    }
    const std::string key = metric.at(0);
    metric.erase(metric.begin());
    take(key, metric);
  }
  if (rows == 0) {
    throw std::runtime_error("cannot read " + path);
  }
}

}  // namespace

Metrics BuiltInMetrics() {
  Metrics metrics;
  ReadTable(VMETRICS_GOLDEN "/numeric_catalogue.tsv",
            [&](const std::string& key, const Metric& metric) {
              metrics.numbered[static_cast<std::int32_t>(std::stoul(key, nullptr, 16))] = metric;
            });
  ReadTable(VMETRICS_GOLDEN "/string_catalogue.tsv",
            [&](const std::string& key, const Metric& metric) { metrics.named[key] = metric; });
  return metrics;
}

}  // namespace Oracle
