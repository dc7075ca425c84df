/// Takes apart the lines of a metrics log that processes have left by crashing.
///
/// Every metrics line is a JSON object and is written whole, with its line break. A process that is
/// killed inside its write leaves the beginning of a line, and the line of the next process is
/// glued to it:
///
///     {"eventId":"a","timesta{"eventId":"b","timestamp":1700000000240}
///
/// Example:
///
///     LineRecovery recovery;
///     for (const std::string_view text : recovery.TextsOf(line)) {
///       Evaluate(text);
///     }
#ifndef VMETRICS_TOOL_LINERECOVERY_H_
#define VMETRICS_TOOL_LINERECOVERY_H_

#include <cstdint>
#include <string_view>
#include <vector>

#include "JsonObjectCheck.h"
#include "LineSearch.h"

namespace vmetrics {

class LineRecovery {
 public:
  struct Counts {
    std::uint64_t whole = 0;      ///< Texts that had their line for themselves.
    std::uint64_t recovered = 0;  ///< Texts that shared it with a fragment or with each other.
    std::uint64_t fragments = 0;  ///< Lines or parts of lines that hold no text.

    bool operator==(const Counts& other) const {
      return whole == other.whole && recovered == other.recovered && fragments == other.fragments;
    }
  };

  /// The JSON texts in `line`, which are parts of it, in their order; none in a blank line or in
  /// one that is a fragment through and through.
  ///
  /// What is found are the objects that end where the line ends, or where the next one that was
  /// found begins, and wherever they stand those that begin as the library's lines do. What stands
  /// around them without a brace, such as a logger's prefix or a terminal's reset of colours, is
  /// passed over; with one it is a fragment. Where a fragment's last characters ask for a value, an
  /// object is taken for that value, unless it begins as the library's lines do.
  ///
  /// Takes time linear in the line's length, whatever the line. The result is good until the next
  /// call.
  const std::vector<std::string_view>& TextsOf(std::string_view line);

  /// Of all lines so far.
  const Counts& Total() const { return total_; }

 private:
  bool TakeLastText(std::string_view& rest, std::size_t firstBrace);
  void TakeLines(std::string_view rest);
  void Count(std::string_view line);

  JsonObjectCheck check_;
  LineSearch search_;
  std::vector<std::string_view> texts_;
  Counts total_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LINERECOVERY_H_
