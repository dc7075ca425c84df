/// The value of a record, as people read it.
#ifndef VMETRICS_TOOL_VALUEFIELDS_H_
#define VMETRICS_TOOL_VALUEFIELDS_H_

#include <string_view>

#include "RecordFields.h"

namespace vmetrics {

/// The field behind the header of `record`, which may be cut short within it.
RecordField ValueField(RecordKind kind, std::string_view record);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_VALUEFIELDS_H_
