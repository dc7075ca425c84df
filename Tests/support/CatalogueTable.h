/// The catalogue as lines of text, for comparison with the tables in Tests/golden.
#ifndef CATALOGUETABLE_H_
#define CATALOGUETABLE_H_

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "VMetrics.h"

/// The columns of a row, separated by tabs.
inline std::string CatalogueRow(const std::string& key, const MetricEntry& entry) {
  std::string row = key;
  for (const std::string& column : entry) {
    row += '\t' + column;
  }
  return row;
}

/// The same for a metric ID, which stands in hexadecimal.
inline std::string CatalogueRow(std::uint32_t key, const MetricEntry& entry) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%08X", key);
  return CatalogueRow(std::string(text), entry);
}

inline std::string CatalogueRow(int key, const MetricEntry& entry) {
  return CatalogueRow(static_cast<std::uint32_t>(key), entry);
}

/// The rows of a table in Tests/golden, sorted; none if it cannot be read.
inline std::vector<std::string> GoldenRows(const std::string& file) {
  std::ifstream table(VMETRICS_GOLDEN "/" + file);
  std::vector<std::string> rows;
  for (std::string row; std::getline(table, row);) {
    rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

#endif  // CATALOGUETABLE_H_
