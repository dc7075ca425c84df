/// What the letters of a numeric ID give away.
#ifndef VMETRICS_TOOL_IDRULES_H_
#define VMETRICS_TOOL_IDRULES_H_

#include <string_view>
#include <vector>

#include "catalogue/DefinitionLint.h"

namespace vmetrics {

/// About the first field of a numeric definition. Nothing about one that counts as 0, which is
/// refused.
std::vector<LintFinding> FindingsInId(std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_IDRULES_H_
