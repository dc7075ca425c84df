/// Texts that occur again and again, each kept once and named by a number.
#ifndef VMETRICS_TOOL_TEXTPOOL_H_
#define VMETRICS_TOOL_TEXTPOOL_H_

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "trace/HashIndex.h"

namespace vmetrics {

class TextPool {
 public:
  /// The number of `text`, which is added where it is new.
  std::uint32_t Add(std::string_view text) {
    const std::uint64_t hash = std::hash<std::string_view>()(text);
    std::uint32_t number =
        index_.Find(hash, [&](std::uint32_t other) { return texts_[other] == text; });
    if (number == HashIndex::kNone) {
      number = static_cast<std::uint32_t>(texts_.size());
      texts_.emplace_back(text);
      index_.Add(hash, number);
    }
    return number;
  }

  /// The text of that number; good as long as the pool.
  std::string_view operator[](std::uint32_t number) const { return texts_[number]; }

 private:
  std::deque<std::string> texts_;
  HashIndex index_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TEXTPOOL_H_
