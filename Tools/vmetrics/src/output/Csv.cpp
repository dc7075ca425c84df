#include "Csv.h"

#include <fmt/format.h>

#include "Text.h"

namespace vmetrics {

namespace {

std::string Field(std::string_view text) {
  std::string printable = Printable(text);
  if (printable.find_first_of(",\"") == printable.npos) {
    return printable;
  }
  std::string quoted = "\"";
  for (const char c : printable) {
    quoted.append(c == '"' ? 2 : 1, c);
  }
  return quoted + '"';
}

}  // namespace

std::string CsvLine(const std::vector<std::string_view>& fields) {
  std::vector<std::string> written;
  written.reserve(fields.size());
  for (const std::string_view field : fields) {
    written.push_back(Field(field));
  }
  return fmt::format("{}\n", fmt::join(written, ","));
}

}  // namespace vmetrics
