#include "VMetrics.h"

int main() {
  // Make a metric of your own known: ID, type, JSON key, private or not.
  char definition[] = "order_placed;json;orderPlaced;0";
  VMetrics::RegisterMetricsStringDataType(definition);

  // Trace a step; its parent is the step that ended last, in whatever process.
  VMetrics::InsertRecord(0, "order-7", "ORDER", "place", "ParentSpanId", 0);
  const char data[] = "{\"items\": 3, \"total\": 41.50}";
  const int status = SendStringDataToMetric("order_placed", "shop", data, sizeof data - 1,
                                            VMETRICS_HEADER_INDEX_FRAMEWORK);
  return VMetrics::InsertRecord(1, "order-7", "ORDER", "place", "ParentSpanId", status);
}
