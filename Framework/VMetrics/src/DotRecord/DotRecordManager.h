/// The transactions of a process.
#ifndef VMETRICS_DOTRECORD_DOTRECORDMANAGER_H_
#define VMETRICS_DOTRECORD_DOTRECORDMANAGER_H_

#include <map>
#include <string>

#include "DotRecord/DotTransaction.h"

namespace vmetrics {

/// Owns its transactions. It has no lock: callers serialise their step events.
struct DotRecordManager {
  DotRecordManager() = default;
  ~DotRecordManager();
  DotRecordManager(const DotRecordManager&) = delete;
  DotRecordManager& operator=(const DotRecordManager&) = delete;

  /// Forgets every transaction, with the steps that are still open.
  void ResourceClear();

  int capacity = 100;
  /// Null for a transaction that could not be allocated.
  std::map<std::string, DotTransaction*> transactions;
};

/// The transaction of that ID, made on its first event; when the table is full, all others are
/// forgotten first. Null for an empty ID, and when the transaction could not be allocated: the null
/// stays in the table until that is cleared.
DotTransaction* GetDotTransaction(DotRecordManager& manager, const std::string& transactionId);

}  // namespace vmetrics

#endif  // VMETRICS_DOTRECORD_DOTRECORDMANAGER_H_
