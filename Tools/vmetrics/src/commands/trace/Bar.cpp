#include "trace/Bar.h"

#include <algorithm>
#include <array>

namespace vmetrics {

namespace {

constexpr std::size_t kParts = 8;  // Of a column.
/// What begins at the left edge of its column, by its parts.
constexpr std::array<std::string_view, kParts + 1> kLeftBlocks = {" ", "▏", "▎", "▍", "▌",
                                                                  "▋", "▊", "▉", "█"};
constexpr std::string_view kRightHalf = "▐";
constexpr std::string_view kRightPart = "▕";

std::string Joined(const std::vector<std::string_view>& cells) {
  std::string text;
  std::size_t end = 0;
  for (const std::string_view cell : cells) {
    text += cell;
    end = cell == " " ? end : text.size();
  }
  text.resize(end);
  return text;
}

}  // namespace

Scale::Scale(std::int64_t start, std::int64_t end, std::size_t columns, bool hasBlocks)
    : start_(start),
      end_(end),
      columns_(std::max<std::size_t>(columns, 1)),
      hasBlocks_(hasBlocks) {}

std::string Scale::Bar(std::int64_t from, std::int64_t to) const {
  Cells cells(columns_, " ");
  if (from <= end_ && to >= start_) {
    if (hasBlocks_) {
      FillWithBlocks(cells, PositionOf(from), PositionOf(to));
    } else {
      FillWithAscii(cells, PositionOf(from), PositionOf(to));
    }
  }
  if (from < start_) {
    cells.front() = hasBlocks_ ? "◂" : "<";
  }
  if (to > end_) {
    cells.back() = hasBlocks_ ? "▸" : ">";
  }
  return Joined(cells);
}

std::string Scale::Gap(std::int64_t from, std::int64_t to) const {
  Cells cells(columns_, " ");
  const std::size_t first = (PositionOf(from) + kParts - 1) / kParts;
  const std::size_t last = std::max(PositionOf(to) / kParts, first + 1);
  for (std::size_t i = first; i < std::min(last, columns_); ++i) {
    cells[i] = hasBlocks_ ? "·" : ".";
  }
  return Joined(cells);
}

std::string Scale::Mark(std::int64_t at, char mark) const {
  return std::string(ColumnOf(at), ' ') + mark;
}

/// In parts of a column.
std::size_t Scale::PositionOf(std::int64_t tick) const {
  if (end_ <= start_) {
    return 0;
  }
  const auto distance = static_cast<std::size_t>(std::clamp(tick, start_, end_) - start_);
  return distance * (columns_ * kParts) / static_cast<std::size_t>(end_ - start_);
}

std::size_t Scale::ColumnOf(std::int64_t tick) const {
  return std::min(PositionOf(tick) / kParts, columns_ - 1);
}

/// The left edge is drawn to half a column, as there are no finer characters for it.
void Scale::FillWithBlocks(Cells& cells, std::size_t from, std::size_t to) const {
  const std::size_t first = std::min(from / kParts, columns_ - 1);
  const bool beginsAtHalf = from % kParts >= kParts / 2;
  if (to == from) {
    const bool isAtRight = beginsAtHalf || from == columns_ * kParts;
    cells[first] = isAtRight ? kRightPart : kLeftBlocks[1];
    return;
  }
  const std::size_t full = to / kParts;  // The first column that is not filled to its right edge.
  for (std::size_t i = first; i < full; ++i) {
    cells[i] = kLeftBlocks[kParts];
  }
  if (to % kParts > 0) {
    cells[full] = kLeftBlocks[to % kParts];
  }
  if (beginsAtHalf) {
    cells[first] = kRightHalf;
  }
}

void Scale::FillWithAscii(Cells& cells, std::size_t from, std::size_t to) const {
  const std::size_t first = std::min(from / kParts, columns_ - 1);
  const std::size_t last = std::max((to + kParts / 2) / kParts, first + 1);
  const bool isShort = to - from < kParts / 2;
  for (std::size_t i = first; i < last; ++i) {
    cells[i] = isShort ? "|" : "=";
  }
}

}  // namespace vmetrics
