/// The open steps of one transaction.
#ifndef VMETRICS_DOTRECORD_DOTTRANSACTION_H_
#define VMETRICS_DOTRECORD_DOTTRANSACTION_H_

#include <map>
#include <string>

#include "DotRecord/StepRecord.h"

namespace vmetrics {

struct DotTransaction {
  explicit DotTransaction(const std::string& id) : transactionId(id) {}

  /// Notes the start of a step or reports its end; returns a VMetricsStatus.
  int InsertRecord(DotStepRecord* record);

  std::map<std::string, unsigned long> stepStarts;  ///< Open step -> tick of its start.
  std::string transactionId;
};

}  // namespace vmetrics

#endif  // VMETRICS_DOTRECORD_DOTTRANSACTION_H_
