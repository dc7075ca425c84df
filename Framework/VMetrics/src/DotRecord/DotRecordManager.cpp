#include "DotRecord/DotRecordManager.h"

#include <memory>
#include <new>

#include "Common/Log.h"

namespace vmetrics {

DotRecordManager::~DotRecordManager() { ResourceClear(); }

void DotRecordManager::ResourceClear() {
  VMETRICS_LOG(kDotRecordSource, kLogInformation, "ResourceClear");
  for (auto& [id, transaction] : transactions) {
    delete transaction;
    transaction = nullptr;
  }
  transactions.clear();
}

DotTransaction* GetDotTransaction(DotRecordManager& manager, const std::string& transactionId) {
  if (transactionId.empty()) {
    return nullptr;
  }
  const auto found = manager.transactions.find(transactionId);
  if (found != manager.transactions.end()) {
    return found->second;
  }
  if (static_cast<int>(manager.transactions.size()) >= manager.capacity) {
    manager.ResourceClear();
  }
  std::unique_ptr<DotTransaction> created(new (std::nothrow) DotTransaction(transactionId));
  manager.transactions.emplace(transactionId, created.get());
  return created.release();
}

}  // namespace vmetrics
