/// A transaction with all that is shown of it.
#ifndef VMETRICS_TOOL_TRANSACTIONVIEW_H_
#define VMETRICS_TOOL_TRANSACTIONVIEW_H_

#include "trace/Parents.h"
#include "trace/StepStore.h"
#include "trace/Timeline.h"

namespace vmetrics {

struct TransactionView {
  const StepStore& store;
  const Transaction& transaction;
  const Timeline& timeline;
  bool isIncomplete;       ///< Earlier steps of it were not kept.
  const Parents* parents;  ///< Null where they are not asked for.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TRANSACTIONVIEW_H_
