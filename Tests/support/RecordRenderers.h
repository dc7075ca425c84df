/// The four renderers of records, on bytes behind which nothing can be read.
#ifndef RECORDRENDERERS_H_
#define RECORDRENDERERS_H_

#include <string>

#include "GuardedBytes.h"
#include "Records.h"
#include "VIpc.h"
#include "VMetrics.h"

inline std::string RenderNumeric(const std::string& record) {
  return VMetrics::GetBaseMetricsString(GuardedBytes(record).As<VMetricsData>());
}

inline std::string RenderMessage(const std::string& record) {
  return VMetrics::FmtMetricsMsgToString(GuardedBytes(Message(1, 2, 3, record)).As<VMessage>());
}

inline std::string RenderText(const TextRecord& record) {
  return VMetrics::GetStringBaseMetricsString(
      GuardedBytes(record.Bytes()).As<VMetricsDataString>());
}

inline std::string RenderCheckedText(const TextRecord& record) {
  return VMetrics::StringFmtMetricsMsgToString(
      GuardedBytes(record.Bytes()).As<VMetricsDataString>());
}

#endif  // RECORDRENDERERS_H_
