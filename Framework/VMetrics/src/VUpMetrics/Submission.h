/// What the reporters share on top of the general submission.
#ifndef VMETRICS_VUPMETRICS_SUBMISSION_H_
#define VMETRICS_VUPMETRICS_SUBMISSION_H_

#include <string>

#include "VJson.h"
#include "VMetrics.h"

namespace vmetrics {

/// Submits the text of `payload`; returns the status of the submission.
inline int Submit(const char* eventId, const char* serviceName, const VJson::Value& payload,
                  VMetricsHeaderIndexType headerIndexType) {
  const std::string text = payload.ToString();
  return SendStringDataToMetric(eventId, serviceName, text.data(), static_cast<int>(text.size()),
                                headerIndexType);
}

}  // namespace vmetrics

#endif  // VMETRICS_VUPMETRICS_SUBMISSION_H_
