#include "trace/TransactionCollection.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vmetrics {

void TransactionCollection::Add(const StepRecord& record) {
  if (!keepsAll_ && !selection_.Names(record.transactionId)) {
    return;
  }
  store_.Add(record);
  if (selection_.last && !keepsAll_ && HasTooMuch()) {
    DropOldest();
  }
}

bool TransactionCollection::HasTooMuch() const {
  const std::size_t spare = *selection_.last + limits_.spareTransactions;
  // Twice as much as is kept, so that dropping costs each step the same, however many there are.
  return store_.Transactions().size() > 2 * spare ||
         (store_.StepCount() > 2 * std::max(limits_.spareSteps, stepsThen_) &&
          store_.Transactions().size() > *selection_.last);
}

void TransactionCollection::DropOldest() {
  const std::vector<const Transaction*> kept = WorthKeeping();
  const std::unordered_set<const Transaction*> isKept(kept.begin(), kept.end());
  StepStore store;
  for (const Transaction& transaction : store_.Transactions()) {
    if (isKept.count(&transaction) > 0) {
      store.AddCopy(store_, transaction);
    } else {
      dropped_.Add(store_.TextOf(transaction.identifier));
    }
  }
  std::swap(store, store_);
  stepsThen_ = store_.StepCount();
}

std::vector<const Transaction*> TransactionCollection::WorthKeeping() const {
  std::vector<const Transaction*> latest;
  latest.reserve(store_.Transactions().size());
  for (const Transaction& transaction : store_.Transactions()) {
    latest.push_back(&transaction);
  }
  std::stable_sort(latest.begin(), latest.end(), [](const Transaction* a, const Transaction* b) {
    return a->lastEnd > b->lastEnd;
  });
  const std::size_t asked = *selection_.last;
  std::size_t included = 0;
  std::size_t spare = 0;
  std::size_t spareSteps = 0;
  std::vector<const Transaction*> kept;
  for (const Transaction* transaction : latest) {
    const bool isAskedFor = included < asked && selection_.MayInclude(*transaction);
    const bool hasRoom = spare < limits_.spareTransactions &&
                         spareSteps + transaction->stepCount <= limits_.spareSteps;
    if (isAskedFor) {
      ++included;
      kept.push_back(transaction);
    } else if (hasRoom) {
      ++spare;
      spareSteps += transaction->stepCount;
      kept.push_back(transaction);
    }
  }
  return kept;
}

}  // namespace vmetrics
