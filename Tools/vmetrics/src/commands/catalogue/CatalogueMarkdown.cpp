#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "MetricId.h"
#include "Terminal.h"
#include "Text.h"
#include "catalogue/CatalogueFormats.h"

namespace vmetrics {

namespace {

constexpr const char* kIntroduction = R"(
A numeric ID is made of the group (bits 31 to 24), the side that reports the metric (bits 23 to 16:
0x0B the client, 0x0A the server) and an index (bits 15 to 0). Records show it as a signed decimal
text; its upper half is their `moduleId`. IDs that a host registers need not follow this.

The name is the JSON key of the value; the value of a `json` metric takes the place of the whole
object, so its name does not appear. Misspelt names are kept: receivers match on them.
A private metric is rendered like any other; the flag tells those who collect.
)";

constexpr const char* kPage = R"(# The built-in metrics

Made by `vmetrics catalogue --format markdown`; a test compares this page with what that writes.
)";

constexpr const char* kOtherPage = "# Metrics\n";

/// A text within a table, its characters that mean something there taken by their letters.
std::string Cell(std::string_view text) {
  std::string cell;
  for (const char c : Printable(text)) {
    if (std::string_view("|\\`*<[&").find(c) != std::string_view::npos) {
      cell += '\\';
    }
    cell += c;
  }
  return cell;
}

/// The columns that all tables have.
std::string EntryCells(const CatalogueRow& row) {
  return fmt::format("{} | {} | {} |", Cell(row.Type()), Cell(row.Name()), Cell(PrivateMark(row)));
}

void WriteNumeric(const CatalogueRows& rows) {
  std::optional<unsigned int> group;
  for (const CatalogueRow& row : rows) {
    if (row.id && group != GroupOf(*row.id)) {
      group = GroupOf(*row.id);
      const std::string_view title = TitleOfGroup(*group);
      Write(fmt::format("\n### {}{}{}\n\n", HexadecimalByte(*group), title.empty() ? "" : ": ",
                        title));
      Write("| ID | Decimal | Type | Name | Private |\n|---|---|---|---|---|\n");
    }
    if (row.id) {
      Write(fmt::format("| {} | {} | {}\n", HexadecimalId(*row.id), *row.id, EntryCells(row)));
    }
  }
}

void WriteEvents(const CatalogueRows& rows) {
  Write("\n| Event ID | Type | Name | Private |\n|---|---|---|---|\n");
  for (const CatalogueRow& row : rows) {
    if (!row.id) {
      Write(fmt::format("| {} | {}\n", Cell(row.eventId), EntryCells(row)));
    }
  }
}

}  // namespace

void WriteMarkdown(const CatalogueRows& rows, bool isBuiltIn) {
  const auto isNumeric = [](const CatalogueRow& row) { return row.id.has_value(); };
  const auto numeric = static_cast<std::size_t>(std::count_if(rows.begin(), rows.end(), isNumeric));
  Write(isBuiltIn ? kPage : kOtherPage);
  Write(kIntroduction);
  if (numeric > 0) {
    Write(fmt::format("\n## Numeric IDs: {}\n", Counted(numeric, "metric")));
    WriteNumeric(rows);
  }
  if (numeric < rows.size()) {
    Write(fmt::format("\n## Event IDs: {}\n", Counted(rows.size() - numeric, "metric")));
    WriteEvents(rows);
  }
}

}  // namespace vmetrics
