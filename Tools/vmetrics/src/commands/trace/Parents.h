/// Which step each step names as its parent.
#ifndef VMETRICS_TOOL_PARENTS_H_
#define VMETRICS_TOOL_PARENTS_H_

#include <unordered_map>
#include <vector>

#include "trace/StepStore.h"

namespace vmetrics {

class Parents {
 public:
  struct Place {
    const Transaction* transaction = nullptr;
    const Step* step = nullptr;
  };

  /// Looks for the parents of these transactions' steps in the whole store.
  Parents(const StepStore& store, const std::vector<const Transaction*>& transactions);

  /// The parent of a step of `transaction`, from there if possible; a null step where the store has
  /// none.
  Place Of(const Step& step, const Transaction& transaction) const;

 private:
  /// Where a span is: in that transaction or, with a null one, anywhere.
  struct Key {
    Identifier span;
    const Transaction* transaction;

    bool operator==(const Key& other) const {
      return span == other.span && transaction == other.transaction;
    }
  };
  struct Hash {
    std::size_t operator()(const Key& key) const {
      return std::hash<Identifier>()(key.span) ^ std::hash<const void*>()(key.transaction);
    }
  };

  // Identifiers are made from 32 random bits, so that several transactions may have the same one.
  std::unordered_map<Key, Place, Hash> places_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_PARENTS_H_
