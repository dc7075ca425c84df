#include "Table.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "Text.h"

namespace vmetrics {

namespace {

std::size_t GapBefore(const std::string& heading) { return heading.empty() ? 1 : 2; }

std::string WithLineBreak(Style style, std::string_view text) {
  const std::size_t end = text.find_last_not_of(' ') + 1;
  return Styled(style, text.substr(0, end)) + '\n';
}

/// A text on a line of its own, cut where it is longer than that.
std::string OwnLine(Style style, std::string_view text, std::size_t width) {
  return WithLineBreak(style, WidthOf(text) <= width ? std::string(text) : Fitted(text, width));
}

}  // namespace

Table::Table(std::vector<std::string> headings) { AddRow(std::move(headings), Style::kBold); }

void Table::AddRow(std::vector<std::string> cells, Style style) {
  rows_.push_back({std::move(cells), style});
}

void Table::AddLine(std::string text, Style style) { rows_.push_back({{std::move(text)}, style}); }

std::string Table::Text(std::size_t width) const {
  const std::vector<std::size_t> widths = CellWidths();
  const std::size_t ofCells = std::accumulate(widths.begin(), widths.end(), std::size_t{0});
  const std::size_t labelWidth = LabelWidth(width - std::min(width, ofCells));
  std::string text;
  for (const auto& [cells, style] : rows_) {
    const bool fits = cells.size() > 1 && WidthOf(cells[0]) <= labelWidth;
    if (!fits) {
      text += OwnLine(style, cells[0], width);
    }
    if (cells.size() > 1) {
      std::string line = Fitted(fits ? cells[0] : "", labelWidth);
      for (std::size_t column = 1; column < cells.size(); ++column) {
        line += AlignedRight(cells[column], widths[column - 1]);
      }
      text += WithLineBreak(style, line);
    }
  }
  return text;
}

/// Of each column but the labels', with the gap in front of it.
std::vector<std::size_t> Table::CellWidths() const {
  const std::vector<std::string>& headings = rows_.front().cells;
  std::vector<std::size_t> widths(headings.size() - 1);
  for (const Row& row : rows_) {
    for (std::size_t column = 1; column < row.cells.size(); ++column) {
      std::size_t& width = widths[column - 1];
      width = std::max(width, GapBefore(headings[column]) + WidthOf(row.cells[column]));
    }
  }
  return widths;
}

/// The width of the widest label that fits into the room beside the cells.
std::size_t Table::LabelWidth(std::size_t room) const {
  std::size_t widest = 0;
  for (const Row& row : rows_) {
    const std::size_t width = row.cells.size() == 1 ? 0 : WidthOf(row.cells[0]);
    widest = width <= room ? std::max(widest, width) : widest;
  }
  return widest;
}

}  // namespace vmetrics
