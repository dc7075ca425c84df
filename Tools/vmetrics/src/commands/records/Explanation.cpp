#include "Explanation.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "HexRows.h"
#include "RecordFields.h"
#include "Terminal.h"
#include "Text.h"

namespace vmetrics {

namespace {

/// Bytes in a row, so that a row fits into the terminal with some room for the meaning.
std::size_t BytesPerRow() {
  const std::size_t width = OutputWidth();
  return width >= 120 ? 16 : width >= 72 ? 8 : 4;
}

/// The bytes of a field in rows, what is too much of them left out: beyond a few rows, and the
/// zeros with which a text is filled up.
std::vector<std::string> RowsOf(std::string_view bytes, std::size_t perRow) {
  constexpr std::size_t kShown = 64;
  constexpr std::size_t kZerosOfNumbers = 8;
  const std::size_t end = bytes.find_last_not_of('\0') + 1;
  const std::size_t zeros = bytes.size() - end;
  const std::size_t used = zeros > kZerosOfNumbers ? end + 1 : bytes.size();
  std::vector<std::string> rows = HexRows(bytes.substr(0, std::min(used, kShown)), perRow);
  if (used > kShown) {
    rows.push_back(fmt::format("+{} more", bytes.size() - kShown));
  } else if (used < bytes.size()) {
    rows.push_back(fmt::format("+{} zeros", bytes.size() - used));
  }
  return rows;
}

void ExplainField(const RecordField& field, std::uint64_t offset, std::size_t perRow) {
  const std::vector<std::string> rows = RowsOf(field.bytes, perRow);
  std::vector<std::string> texts = field.meaning;
  for (const std::string& surprise : field.surprises) {
    texts.push_back(Styled(Style::kYellow, "! " + surprise));
  }
  for (std::size_t at = 0; at < std::max({rows.size(), texts.size(), std::size_t{1}}); ++at) {
    const bool isFirst = at == 0;
    const std::string row =
        fmt::format("{:>8}  {:<{}}  {:<13}  {}", isFirst ? fmt::format("{}", offset) : "",
                    at < rows.size() ? rows[at] : "", 3 * perRow - 1, isFirst ? field.name : "",
                    at < texts.size() ? texts[at] : "");
    Write(row.substr(0, row.find_last_not_of(' ') + 1) + "\n");
  }
}

}  // namespace

void Explain(RecordKind kind, const FoundRecord& record, std::string_view line,
             std::string_view fault) {
  Write(Styled(Style::kBold,
               fmt::format("{}: record {} at byte {}: {}", Printable(record.file), record.number,
                           record.offset, Counted(record.bytes.size(), "byte"))));
  Write("\n");
  const std::size_t perRow = BytesPerRow();
  for (const RecordField& field : FieldsOf(kind, record.bytes)) {
    ExplainField(field, record.offset + field.offset, perRow);
  }
  if (!line.empty()) {
    Write(Printable(line) + "\n");
  }
  if (!fault.empty()) {
    Write(Styled(Style::kRed, fmt::format("the record {}", fault)) + "\n");
  }
  Write("\n");
}

}  // namespace vmetrics
