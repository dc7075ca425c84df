/// A record taken apart, on standard output.
#ifndef VMETRICS_TOOL_EXPLANATION_H_
#define VMETRICS_TOOL_EXPLANATION_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "RecordKind.h"

namespace vmetrics {

/// A record of a file, or what there is of it.
struct FoundRecord {
  const std::string& file;  ///< Its name as people read it.
  std::uint64_t number;     ///< From 1.
  std::uint64_t offset;     ///< In the file; of what is unpacked or made of digits, in the result.
  std::string_view bytes;
};

/// Writes each field with offset, bytes and meaning; then the line that the record is rendered as,
/// if there is one, and what is wrong, if something is.
void Explain(RecordKind kind, const FoundRecord& record, std::string_view line,
             std::string_view fault);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_EXPLANATION_H_
