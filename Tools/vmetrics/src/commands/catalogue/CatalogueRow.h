/// The catalogue as rows.
#ifndef VMETRICS_TOOL_CATALOGUEROW_H_
#define VMETRICS_TOOL_CATALOGUEROW_H_

#include <optional>
#include <string_view>
#include <vector>

#include "MetricLookup.h"
#include "VMetrics.h"

namespace vmetrics {

/// One metric; good as long as the catalogue stays as it is.
struct CatalogueRow {
  std::optional<int> id;  ///< None for a metric with an event ID.
  std::string_view eventId;
  const MetricEntry* entry;

  const std::string& Type() const { return entry->at(0); }
  const std::string& Name() const { return entry->at(1); }
  const std::string& PrivateFlag() const { return entry->at(2); }
  bool IsPrivate() const { return vmetrics::IsPrivate(*entry); }
};

using CatalogueRows = std::vector<CatalogueRow>;

/// All metrics: the numeric IDs in the order of their hexadecimal forms, then the event IDs.
CatalogueRows AllMetrics();

/// What a page or a table says about a flag: nothing of a public metric, "yes" of a private one;
/// any other flag as it is.
std::string_view PrivateMark(const CatalogueRow& row);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_CATALOGUEROW_H_
