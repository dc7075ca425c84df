/// A transaction as a waterfall: its steps one below the other, each with a bar where it lies in
/// time.
#ifndef VMETRICS_TOOL_WATERFALL_H_
#define VMETRICS_TOOL_WATERFALL_H_

#include <cstddef>

#include "trace/TransactionView.h"

namespace vmetrics {

struct WaterfallForm {
  std::size_t width;  ///< Columns that may be taken.
  bool hasBlocks;     ///< Whether characters beyond ASCII are taken for bars.
};

/// Writes it to standard output.
void WriteWaterfall(const TransactionView& view, const WaterfallForm& form);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_WATERFALL_H_
