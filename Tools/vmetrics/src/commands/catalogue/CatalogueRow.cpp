#include "CatalogueRow.h"

#include <algorithm>

namespace vmetrics {

CatalogueRows AllMetrics() {
  CatalogueRows rows;
  for (const auto& [id, entry] : VMetrics::GetMetricsMap()) {
    rows.push_back({id, {}, &entry});
  }
  const auto isNotNegative = [](const CatalogueRow& row) { return *row.id >= 0; };
  std::rotate(rows.begin(), std::find_if(rows.begin(), rows.end(), isNotNegative), rows.end());
  for (const auto& [eventId, entry] : VMetrics::GetMetricsStringMap()) {
    rows.push_back({std::nullopt, eventId, &entry});
  }
  return rows;
}

std::string_view PrivateMark(const CatalogueRow& row) {
  if (row.IsPrivate()) {
    return "yes";
  }
  return row.PrivateFlag() == "0" ? std::string_view() : row.PrivateFlag();
}

}  // namespace vmetrics
