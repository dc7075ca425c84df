/// The steps of many transactions in little memory: 64 bytes a step, 48 a transaction.
#ifndef VMETRICS_TOOL_STEPSTORE_H_
#define VMETRICS_TOOL_STEPSTORE_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "trace/HashIndex.h"
#include "trace/Identifier.h"
#include "trace/StepRecord.h"
#include "trace/TextPool.h"

namespace vmetrics {

struct Step {
  std::int64_t start;
  std::int64_t end;
  std::uint32_t description;  ///< Number of its texts in the pool.
  std::uint32_t previous;     ///< Number of the transaction's step before it in the logs.
  std::int32_t errorCode;
  Identifier span;
  Identifier parent;
  bool hasErrorCode : 1;
  bool isFailed : 1;
};

static_assert(sizeof(Step) == 64, "logs have millions of them");

struct Transaction {
  std::int64_t firstStart = kNoTick;  ///< Of those that are dates.
  std::int64_t lastEnd = kNoTick;     ///< Likewise; of a doubtful one when its line was written.
  std::uint32_t newest = HashIndex::kNone;
  std::uint32_t stepCount = 0;
  Identifier identifier;
  bool hasFailed = false;
  bool hasDoubtfulEnd = false;  ///< One that lies far behind the time when its line was written.
};

static_assert(sizeof(Transaction) == 48, "logs have millions of them");

/// The texts of a step, in the store.
struct Description {
  std::string_view name;
  std::string_view eventId;
  std::string_view parentName;
};

class StepStore {
 public:
  /// Adds a step, and its transaction where that is new.
  void Add(const StepRecord& record);

  /// Adds a transaction of another store, which has to be new here, with its steps.
  void AddCopy(const StepStore& other, const Transaction& transaction);

  std::size_t StepCount() const { return steps_.size(); }

  /// In the order of their first steps in the logs.
  const std::deque<Transaction>& Transactions() const { return transactions_; }

  /// The steps of a transaction in the order of the logs.
  std::vector<const Step*> StepsOf(const Transaction& transaction) const;

  Description DescriptionOf(const Step& step) const;
  std::string TextOf(const Identifier& identifier) const {
    return vmetrics::TextOf(identifier, texts_);
  }

 private:
  Transaction& TransactionOf(const Identifier& identifier);
  void Append(Step step, Transaction& transaction);
  static void Extend(Transaction& transaction, const StepRecord& record);
  std::uint32_t Describe(const Description& description);

  std::deque<Step> steps_;
  std::deque<Transaction> transactions_;
  HashIndex index_;  ///< Of the transactions.
  TextPool texts_;
  std::string key_;  ///< Kept for its memory.
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STEPSTORE_H_
