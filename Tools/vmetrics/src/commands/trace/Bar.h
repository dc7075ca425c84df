/// Bars to scale, in characters.
#ifndef VMETRICS_TOOL_BAR_H_
#define VMETRICS_TOOL_BAR_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vmetrics {

/// Draws what lies between `start` and `end` in so many columns. No bar is without a column, and
/// blanks at the right end are left out.
class Scale {
 public:
  /// Block characters of an eighth of a column, or ASCII.
  Scale(std::int64_t start, std::int64_t end, std::size_t columns, bool hasBlocks);

  /// With an arrow at the side where it reaches beyond the scale.
  std::string Bar(std::int64_t from, std::int64_t to) const;

  /// A line of dots.
  std::string Gap(std::int64_t from, std::int64_t to) const;

  /// A single character, at the side where `at` lies beyond the scale.
  std::string Mark(std::int64_t at, char mark) const;

 private:
  using Cells = std::vector<std::string_view>;

  std::size_t PositionOf(std::int64_t tick) const;
  std::size_t ColumnOf(std::int64_t tick) const;
  void FillWithBlocks(Cells& cells, std::size_t from, std::size_t to) const;
  void FillWithAscii(Cells& cells, std::size_t from, std::size_t to) const;

  const std::int64_t start_;
  const std::int64_t end_;
  const std::size_t columns_;
  const bool hasBlocks_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_BAR_H_
