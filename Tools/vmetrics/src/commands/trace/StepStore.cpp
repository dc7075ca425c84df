#include "trace/StepStore.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace vmetrics {

namespace {

/// The lengths of the first two texts stand in front of the three.
struct Lengths {
  std::uint32_t name;
  std::uint32_t eventId;
};

}  // namespace

void StepStore::Add(const StepRecord& record) {
  Transaction& transaction = TransactionOf(IdentifierOf(record.transactionId, texts_));
  Step step;
  step.start = record.start;
  step.end = record.end;
  step.description = Describe({record.name, record.eventId, record.parentName});
  step.errorCode = record.errorCode;
  step.span = IdentifierOf(record.spanId, texts_);
  step.parent = IdentifierOf(record.parentSpanId, texts_);
  step.hasErrorCode = record.hasErrorCode;
  step.isFailed = record.isFailed;
  Append(step, transaction);
  Extend(transaction, record);
}

void StepStore::AddCopy(const StepStore& other, const Transaction& transaction) {
  const auto copied = [&](const Identifier& identifier) {
    return identifier.kind == Identifier::Kind::kText
               ? IdentifierOf(other.TextOf(identifier), texts_)
               : identifier;
  };
  Transaction& copy = TransactionOf(copied(transaction.identifier));
  copy.firstStart = transaction.firstStart;
  copy.lastEnd = transaction.lastEnd;
  copy.hasFailed = transaction.hasFailed;
  copy.hasDoubtfulEnd = transaction.hasDoubtfulEnd;
  for (const Step* original : other.StepsOf(transaction)) {
    Step step = *original;
    step.description = Describe(other.DescriptionOf(*original));
    step.span = copied(original->span);
    step.parent = copied(original->parent);
    Append(step, copy);
  }
}

std::vector<const Step*> StepStore::StepsOf(const Transaction& transaction) const {
  std::vector<const Step*> steps;
  steps.reserve(transaction.stepCount);
  for (std::uint32_t at = transaction.newest; at != HashIndex::kNone; at = steps_[at].previous) {
    steps.push_back(&steps_[at]);
  }
  std::reverse(steps.begin(), steps.end());
  return steps;
}

Description StepStore::DescriptionOf(const Step& step) const {
  std::string_view text = texts_[step.description];
  Lengths lengths;
  std::memcpy(&lengths, text.data(), sizeof lengths);
  text.remove_prefix(sizeof lengths);
  return {text.substr(0, lengths.name), text.substr(lengths.name, lengths.eventId),
          text.substr(lengths.name + lengths.eventId)};
}

Transaction& StepStore::TransactionOf(const Identifier& identifier) {
  const std::uint64_t hash = std::hash<Identifier>()(identifier);
  std::uint32_t number = index_.Find(
      hash, [&](std::uint32_t other) { return transactions_[other].identifier == identifier; });
  if (number == HashIndex::kNone) {
    number = static_cast<std::uint32_t>(transactions_.size());
    transactions_.emplace_back().identifier = identifier;
    index_.Add(hash, number);
  }
  return transactions_[number];
}

void StepStore::Append(Step step, Transaction& transaction) {
  step.previous = transaction.newest;
  transaction.newest = static_cast<std::uint32_t>(steps_.size());
  ++transaction.stepCount;
  steps_.push_back(step);
}

/// A clock that was set wrongly for a moment must not make its transaction the last one for ever.
void StepStore::Extend(Transaction& transaction, const StepRecord& record) {
  transaction.hasFailed = transaction.hasFailed || record.isFailed;
  if (IsDate(record.end)) {
    const bool isDoubtful = IsDate(record.written) && record.end - record.written > kLongestPause;
    transaction.hasDoubtfulEnd = transaction.hasDoubtfulEnd || isDoubtful;
    transaction.lastEnd = std::max(transaction.lastEnd, isDoubtful ? record.written : record.end);
  }
  if (IsDate(record.start)) {
    transaction.firstStart = transaction.firstStart == kNoTick
                                 ? record.start
                                 : std::min(transaction.firstStart, record.start);
  }
}

std::uint32_t StepStore::Describe(const Description& description) {
  const Lengths lengths = {static_cast<std::uint32_t>(description.name.size()),
                           static_cast<std::uint32_t>(description.eventId.size())};
  key_.assign(reinterpret_cast<const char*>(&lengths), sizeof lengths);
  key_.append(description.name).append(description.eventId).append(description.parentName);
  return texts_.Add(key_);
}

}  // namespace vmetrics
