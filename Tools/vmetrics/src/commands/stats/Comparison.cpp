#include "stats/Comparison.h"

namespace vmetrics {

namespace {

/// A rate of 0.3 and one of 0.2 differ by less than 10 percentage points, a little, in binary.
constexpr double kRoundingError = 1e-9;

void Judge(Change& change, const Rule& rule) {
  const Figures& before = *change.before;
  const Figures& after = *change.after;
  if (before.count < rule.leastCount || after.count < rule.leastCount) {
    change.verdict = Verdict::kFew;
    return;
  }
  // False where either has no median, which is not a number.
  const double growth = after.median - before.median;
  change.medianGrew = growth >= rule.leastGrowth && growth * 100 > before.median * rule.threshold;
  const double points = (after.FailureRate() - before.FailureRate()) * 100;
  change.failureRateGrew = points > rule.threshold + kRoundingError;
  change.verdict = change.medianGrew || change.failureRateGrew ? Verdict::kWorse : Verdict::kSame;
}

}  // namespace

std::vector<Change> Compare(const std::vector<Summary>& before, const std::vector<Summary>& after,
                            const Rule& rule) {
  std::vector<Change> changes;
  auto old = before.begin();
  auto now = after.begin();
  while (old != before.end() || now != after.end()) {
    const bool isGone = now == after.end() || (old != before.end() && old->key < now->key);
    const bool isAdded = old == before.end() || (now != after.end() && now->key < old->key);
    const Summary& one = isGone ? *old : *now;
    Change change{one.key, one.isMasked, {}, {}};
    if (!isAdded) {
      change.before = (old++)->figures;
    }
    if (!isGone) {
      change.after = (now++)->figures;
    }
    if (isGone || isAdded) {
      change.verdict = isGone ? Verdict::kGone : Verdict::kAdded;
    } else if (one.key.IsStep()) {
      Judge(change, rule);
    }
    changes.push_back(std::move(change));
  }
  return changes;
}

Outcome OutcomeOf(const std::vector<Change>& changes) {
  Outcome outcome;
  for (const Change& change : changes) {
    const bool isWorse = change.verdict == Verdict::kWorse;
    if (isWorse || change.verdict == Verdict::kSame) {
      ++outcome.judged;
      outcome.worse += isWorse ? 1 : 0;
    } else if (change.key.IsStep()) {
      ++outcome.notJudged;
    }
  }
  return outcome;
}

}  // namespace vmetrics
