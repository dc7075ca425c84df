#include "HexRows.h"

#include <fmt/format.h>

namespace vmetrics {

std::vector<std::string> HexRows(std::string_view bytes, std::size_t perRow) {
  std::vector<std::string> rows;
  for (std::size_t at = 0; at < bytes.size(); at += perRow) {
    std::string row;
    for (const char byte : bytes.substr(at, perRow)) {
      row += fmt::format("{}{:02x}", row.empty() ? "" : " ", static_cast<unsigned char>(byte));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace vmetrics
