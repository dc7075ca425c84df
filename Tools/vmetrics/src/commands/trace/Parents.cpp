#include "trace/Parents.h"

#include <unordered_set>

namespace vmetrics {

Parents::Parents(const StepStore& store, const std::vector<const Transaction*>& transactions) {
  std::unordered_set<Identifier> wanted;
  for (const Transaction* transaction : transactions) {
    for (const Step* step : store.StepsOf(*transaction)) {
      wanted.insert(step->parent);
    }
  }
  for (const Transaction& transaction : store.Transactions()) {
    for (const Step* step : store.StepsOf(transaction)) {
      if (wanted.count(step->span) > 0) {
        const Place place = {&transaction, step};
        places_.emplace(Key{step->span, nullptr}, place);
        places_.emplace(Key{step->span, &transaction}, place);
      }
    }
  }
}

Parents::Place Parents::Of(const Step& step, const Transaction& transaction) const {
  auto found = places_.find({step.parent, &transaction});
  if (found == places_.end()) {
    found = places_.find({step.parent, nullptr});
  }
  return found == places_.end() ? Place() : found->second;
}

}  // namespace vmetrics
