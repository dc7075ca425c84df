/// A record field by field, as people read it.
#ifndef VMETRICS_TOOL_RECORDFIELDS_H_
#define VMETRICS_TOOL_RECORDFIELDS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "RecordKind.h"

namespace vmetrics {

struct RecordField {
  std::string_view name;
  std::size_t offset;                  ///< From the record's first byte.
  std::string_view bytes;              ///< Fewer than its width where the record is cut short.
  std::vector<std::string> meaning;    ///< What they say, for a terminal, line by line.
  std::vector<std::string> surprises;  ///< What may not be as the sender meant it.
};

/// The fields of `record`, which may be cut short.
std::vector<RecordField> FieldsOf(RecordKind kind, std::string_view record);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDFIELDS_H_
