#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "MetricId.h"
#include "Terminal.h"
#include "Text.h"
#include "catalogue/CatalogueFormats.h"

namespace vmetrics {

namespace {

/// Whether a column only repeats what the ID says.
enum class Says { kAnew, kAgain };

struct Column {
  std::string heading;
  Says says;
  std::vector<std::string> cells;
  std::size_t width;
};

using Columns = std::vector<Column>;

/// Wider cells widen no column, lest one odd name fills all lines with blanks; they stand out of
/// it.
constexpr std::size_t kWidest = 60;

template <typename CellOf>
Column MakeColumn(const char* heading, Says says, const CatalogueRows& rows, CellOf cellOf) {
  Column column = {heading, says, {}, WidthOf(heading)};
  for (const CatalogueRow& row : rows) {
    column.cells.push_back(Printable(cellOf(row)));
    const std::size_t width = WidthOf(column.cells.back());
    column.width = std::max(column.width, width <= kWidest ? width : 0);
  }
  return column;
}

constexpr std::size_t kGap = 2;

std::size_t WidthOfTable(const Columns& columns) {
  std::size_t width = 0;
  for (const Column& column : columns) {
    width += column.width + kGap;
  }
  return width - kGap;
}

template <typename CellOf>
std::string LineOf(const Columns& columns, CellOf cellOf) {
  std::string line;
  for (const Column& column : columns) {
    const std::string_view cell = cellOf(column);
    line += Fitted(cell, std::max(column.width, WidthOf(cell)) + kGap);
  }
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

void WriteColumns(const Columns& columns) {
  const std::string heading =
      LineOf(columns, [](const Column& column) { return std::string_view(column.heading); });
  Write(Styled(Style::kBold, heading) + '\n');
  for (std::size_t row = 0; row < columns.front().cells.size(); ++row) {
    Write(LineOf(columns,
                 [row](const Column& column) { return std::string_view(column.cells[row]); }) +
          '\n');
  }
}

std::string GroupCell(const CatalogueRow& row) {
  const unsigned int group = GroupOf(*row.id);
  const std::string_view title = TitleOfGroup(group);
  return title.empty() ? HexadecimalByte(group) : std::string(title);
}

std::string SideCell(const CatalogueRow& row) {
  const unsigned int side = SideOf(*row.id);
  const std::string_view name = NameOfSide(side);
  return name.empty() ? HexadecimalByte(side) : std::string(name);
}

/// Leaves out columns that repeat what the ID says, the last one first, until the table fits on the
/// terminal.
void LeaveOutToFit(Columns& columns) {
  const auto repeats = [](const Column& column) { return column.says == Says::kAgain; };
  while (isatty(STDOUT_FILENO) == 1 && WidthOfTable(columns) > OutputWidth()) {
    const auto last = std::find_if(columns.rbegin(), columns.rend(), repeats);
    if (last == columns.rend()) {
      return;
    }
    columns.erase(std::next(last).base());
  }
}

void WriteNumeric(const CatalogueRows& rows) {
  Columns columns = {
      MakeColumn("ID", Says::kAnew, rows,
                 [](const CatalogueRow& row) { return HexadecimalId(*row.id); }),
      MakeColumn("SIDE", Says::kAgain, rows, SideCell),
      MakeColumn("DECIMAL", Says::kAgain, rows,
                 [](const CatalogueRow& row) { return fmt::to_string(*row.id); }),
      MakeColumn("TYPE", Says::kAnew, rows, [](const CatalogueRow& row) { return row.Type(); }),
      MakeColumn("PRIVATE", Says::kAnew, rows, PrivateMark),
      MakeColumn("NAME", Says::kAnew, rows, [](const CatalogueRow& row) { return row.Name(); }),
      MakeColumn("GROUP", Says::kAgain, rows, GroupCell)};
  LeaveOutToFit(columns);
  WriteColumns(columns);
}

void WriteEvents(const CatalogueRows& rows) {
  WriteColumns(
      {MakeColumn("EVENT ID", Says::kAnew, rows,
                  [](const CatalogueRow& row) { return row.eventId; }),
       MakeColumn("TYPE", Says::kAnew, rows, [](const CatalogueRow& row) { return row.Type(); }),
       MakeColumn("PRIVATE", Says::kAnew, rows, PrivateMark),
       MakeColumn("NAME", Says::kAnew, rows, [](const CatalogueRow& row) { return row.Name(); })});
}

}  // namespace

void WriteTable(const CatalogueRows& rows) {
  const auto firstEvent =
      std::find_if(rows.begin(), rows.end(), [](const CatalogueRow& row) { return !row.id; });
  const bool hasNumeric = firstEvent != rows.begin();
  const bool hasEvents = firstEvent != rows.end();
  if (hasNumeric) {
    WriteNumeric({rows.begin(), firstEvent});
  }
  if (hasNumeric && hasEvents) {
    Write("\n");
  }
  if (hasEvents) {
    WriteEvents({firstEvent, rows.end()});
  }
}

}  // namespace vmetrics
