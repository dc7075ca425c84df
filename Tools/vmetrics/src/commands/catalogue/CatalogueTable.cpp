#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>

#include "MetricId.h"
#include "Terminal.h"
#include "Text.h"
#include "catalogue/CatalogueFormats.h"

namespace vmetrics {

namespace {

struct Column {
  Column(std::string columnHeading, std::vector<std::string> columnCells)
      : heading(std::move(columnHeading)), cells(std::move(columnCells)), width(heading.size()) {
    for (const std::string& cell : cells) {
      width = std::max(width, WidthOf(cell));
    }
  }

  std::string heading;
  std::vector<std::string> cells;
  std::size_t width;
};

using Columns = std::vector<Column>;

template <typename CellOf>
Column MakeColumn(const char* heading, const CatalogueRows& rows, CellOf cellOf) {
  std::vector<std::string> cells;
  cells.reserve(rows.size());
  for (const CatalogueRow& row : rows) {
    cells.push_back(Printable(cellOf(row)));
  }
  return Column(heading, std::move(cells));
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
    line += Fitted(cellOf(column), column.width + kGap);
  }
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

void WriteColumns(const Columns& columns) {
  const std::string heading =
      LineOf(columns, [](const Column& column) { return std::string_view(column.heading); });
  Write(Styled(Style::Bold, heading) + '\n');
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

/// The number of the last column that only repeats a part of the first; 0 if there is none.
std::size_t LastRepeating(const Columns& columns) {
  for (std::size_t at = columns.size(); at-- > 0;) {
    const std::string& heading = columns[at].heading;
    if (heading == "GROUP" || heading == "DECIMAL" || heading == "SIDE") {
      return at;
    }
  }
  return 0;
}

void LeaveOutToFit(Columns& columns) {
  while (isatty(STDOUT_FILENO) == 1 && WidthOfTable(columns) > OutputWidth()) {
    const std::size_t at = LastRepeating(columns);
    if (at == 0) {
      return;
    }
    columns.erase(columns.begin() + static_cast<std::ptrdiff_t>(at));
  }
}

void WriteNumeric(const CatalogueRows& rows) {
  Columns columns = {
      MakeColumn("ID", rows, [](const CatalogueRow& row) { return HexadecimalId(*row.id); }),
      MakeColumn("SIDE", rows, SideCell),
      MakeColumn("DECIMAL", rows, [](const CatalogueRow& row) { return fmt::to_string(*row.id); }),
      MakeColumn("TYPE", rows, [](const CatalogueRow& row) { return row.Type(); }),
      MakeColumn("PRIVATE", rows, PrivateMark),
      MakeColumn("NAME", rows, [](const CatalogueRow& row) { return row.Name(); }),
      MakeColumn("GROUP", rows, GroupCell)};
  LeaveOutToFit(columns);
  WriteColumns(columns);
}

void WriteEvents(const CatalogueRows& rows) {
  WriteColumns({MakeColumn("EVENT ID", rows, [](const CatalogueRow& row) { return row.eventId; }),
                MakeColumn("TYPE", rows, [](const CatalogueRow& row) { return row.Type(); }),
                MakeColumn("PRIVATE", rows, PrivateMark),
                MakeColumn("NAME", rows, [](const CatalogueRow& row) { return row.Name(); })});
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
