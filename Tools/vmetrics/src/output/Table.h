/// Rows of figures, each behind what it is about.
#ifndef VMETRICS_TOOL_TABLE_H_
#define VMETRICS_TOOL_TABLE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "Terminal.h"

namespace vmetrics {

/// A label, aligned to the left, and cells, aligned to the right. Texts must be printable.
///
/// A label that does not fit into its row has a line for itself, above its cells. Nothing else
/// depends on the width: cells are never cut.
class Table {
 public:
  /// `headings`: of the labels, then of each column of cells. A column without one belongs to that
  /// before it and stands closer.
  explicit Table(std::vector<std::string> headings);

  /// As many cells as there are headings, the first one the label.
  void AddRow(std::vector<std::string> cells, Style style = Style::kPlain);

  /// A line of its own.
  void AddLine(std::string text, Style style = Style::kPlain);

  /// The lines, for an output of so many columns.
  std::string Text(std::size_t width) const;

 private:
  struct Row {
    std::vector<std::string> cells;  ///< One alone is a line of its own.
    Style style;
  };

  std::vector<std::size_t> CellWidths() const;
  std::size_t LabelWidth(std::size_t room) const;

  std::vector<Row> rows_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TABLE_H_
