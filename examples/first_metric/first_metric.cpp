#include <VMetrics.h>

int main() {
  // Event ID, type of the value, its name in the line, private (1) or not (0).
  char definition[] = "pages_printed;int;pagesPrinted;0";
  VMetrics::RegisterMetricsStringDataType(definition);

  const int pages = 12;
  const int status = SendStringDataToMetric("pages_printed", "print service",
                                            reinterpret_cast<const char*>(&pages), sizeof pages,
                                            VMETRICS_HEADER_INDEX_FRAMEWORK);
  return status == VMETRICS_OK ? 0 : 1;
}
