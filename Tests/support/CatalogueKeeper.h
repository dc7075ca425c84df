/// For tests that change the catalogue.
#ifndef CATALOGUEKEEPER_H_
#define CATALOGUEKEEPER_H_

#include "VMetrics.h"

/// Leaves the catalogue as it was.
class CatalogueKeeper {
 public:
  CatalogueKeeper() = default;
  ~CatalogueKeeper() {
    VMetrics::GetMetricsMap() = numeric_;
    VMetrics::GetMetricsStringMap() = events_;
  }
  CatalogueKeeper(const CatalogueKeeper&) = delete;
  CatalogueKeeper& operator=(const CatalogueKeeper&) = delete;

  const MetricsMap& Numeric() const { return numeric_; }
  const MetricsStringMap& Events() const { return events_; }

 private:
  const MetricsMap numeric_ = VMetrics::GetMetricsMap();
  const MetricsStringMap events_ = VMetrics::GetMetricsStringMap();
};

#endif  // CATALOGUEKEEPER_H_
