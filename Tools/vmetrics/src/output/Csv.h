/// Comma-separated values.
#ifndef VMETRICS_TOOL_CSV_H_
#define VMETRICS_TOOL_CSV_H_

#include <string>
#include <string_view>
#include <vector>

namespace vmetrics {

/// One line with its line feed. A field with a comma or a quotation mark stands in quotation marks,
/// its own doubled; of each field what Printable makes of it.
std::string CsvLine(const std::vector<std::string_view>& fields);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_CSV_H_
