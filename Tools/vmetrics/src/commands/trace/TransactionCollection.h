/// The transactions of which something may have to be shown.
#ifndef VMETRICS_TOOL_TRANSACTIONCOLLECTION_H_
#define VMETRICS_TOOL_TRANSACTIONCOLLECTION_H_

#include <cstddef>
#include <vector>

#include "trace/BloomFilter.h"
#include "trace/Selection.h"
#include "trace/StepStore.h"

namespace vmetrics {

/// Keeps what the selection asks for. Where that is the last few, it keeps those and some more, so
/// that steps which come late find their transaction.
class TransactionCollection {
 public:
  struct Limits {
    std::size_t spareTransactions = 10000;
    std::size_t spareSteps = 400000;
  };

  explicit TransactionCollection(const Selection& selection) : selection_(selection) {}
  TransactionCollection(const Selection& selection, Limits limits)
      : selection_(selection), limits_(limits) {}

  /// Keeps every step from now on, also those of transactions that are not asked for.
  void KeepAll() { keepsAll_ = true; }

  void Add(const StepRecord& record);

  const StepStore& Store() const { return store_; }

  /// Whether the transaction, which is in the store, was dropped before and has come back.
  bool IsIncomplete(const Transaction& transaction) const {
    return dropped_.MayHold(store_.TextOf(transaction.identifier));
  }

 private:
  bool HasTooMuch() const;
  void DropOldest();
  std::vector<const Transaction*> WorthKeeping() const;

  const Selection& selection_;
  const Limits limits_;
  bool keepsAll_ = false;
  StepStore store_;
  BloomFilter dropped_;
  std::size_t stepsThen_ = 0;  ///< After something was dropped.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TRANSACTIONCOLLECTION_H_
