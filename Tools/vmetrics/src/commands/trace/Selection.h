/// Which transactions a user asks for.
#ifndef VMETRICS_TOOL_SELECTION_H_
#define VMETRICS_TOOL_SELECTION_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "trace/StepStore.h"

namespace vmetrics {

struct Selection {
  std::vector<std::string> transactions;   ///< Their identifiers; none stands for all.
  bool onlyFailed = false;                 ///< Those of which a step has failed.
  std::optional<std::int64_t> slowerThan;  ///< Those that took longer, in milliseconds.
  std::optional<std::size_t> last;         ///< So many of them, those that ended last.

  bool Names(std::string_view transaction) const {
    return transactions.empty() ||
           std::find(transactions.begin(), transactions.end(), transaction) != transactions.end();
  }

  /// False for a transaction that is left out whatever its name. A true one may still turn out to
  /// be fast enough to be left out, as times that cannot be right count here.
  bool MayInclude(const Transaction& transaction) const {
    return (!onlyFailed || transaction.hasFailed) &&
           (!slowerThan || transaction.hasDoubtfulEnd ||
            (transaction.firstStart != kNoTick && transaction.lastEnd != kNoTick &&
             transaction.lastEnd - transaction.firstStart > *slowerThan));
  }
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_SELECTION_H_
