/// A transaction for scripts.
#ifndef VMETRICS_TOOL_TRACEJSON_H_
#define VMETRICS_TOOL_TRACEJSON_H_

#include "VJson.h"
#include "trace/TransactionView.h"

namespace vmetrics {

/// The transaction as a JSON object.
VJson::Value JsonOf(const TransactionView& view);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TRACEJSON_H_
