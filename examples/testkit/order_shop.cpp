#include "order_shop.h"

#include <VMetrics.h>

namespace {

const int kNothingToOrder = 17;

void Trace(int status, const std::string& order, const char* step, int error) {
  VMetrics::InsertRecord(status, order.c_str(), "ORDER", step, "ParentSpanId", error);
}

int CheckStock(int items) { return items > 0 ? 0 : kNothingToOrder; }

void ReportOrder(int items) {
  const std::string data = "{\"items\": " + std::to_string(items) + ", \"currency\": \"EUR\"}";
  SendStringDataToMetric("order_placed", "shop", data.data(), static_cast<int>(data.size()),
                         VMETRICS_HEADER_INDEX_FRAMEWORK);
}

}  // namespace

bool OpenShop() {
  char definition[] = "order_placed;json;orderPlaced;0";
  return VMetrics::RegisterMetricsStringDataType(definition) == VMETRICS_OK;
}

int PlaceOrder(const std::string& order, int items) {
  Trace(0, order, "check stock", 0);
  const int error = CheckStock(items);
  Trace(1, order, "check stock", error);
  if (error != 0) {
    return error;
  }
  Trace(0, order, "place", 0);
  ReportOrder(items);
  Trace(1, order, "place", 0);
  return 0;
}
