#include "RecordHex.h"

#include <fmt/format.h>

#include <algorithm>

#include "HexRows.h"
#include "RecordFields.h"

namespace vmetrics {

std::string RecordAsHex(RecordKind kind, std::string_view record) {
  constexpr std::size_t kPerRow = 16;
  const std::size_t width = kind == RecordKind::kString ? 3 * kPerRow - 1 : 23;
  std::string text;
  for (const RecordField& field : FieldsOf(kind, record)) {
    std::vector<std::string> rows = HexRows(field.bytes, kPerRow);
    rows.resize(std::max<std::size_t>(rows.size(), 1));
    std::vector<std::string> texts = field.meaning;
    texts.insert(texts.end(), field.surprises.begin(), field.surprises.end());
    text += fmt::format("{:<{}}  # {}: {}\n", rows[0], width, field.name, fmt::join(texts, "; "));
    for (std::size_t at = 1; at < rows.size(); ++at) {
      text += rows[at] + "\n";
    }
  }
  return text + "\n";
}

}  // namespace vmetrics
