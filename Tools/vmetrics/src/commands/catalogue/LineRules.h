/// What the letters of a definition give away, whatever the catalogue holds.
#ifndef VMETRICS_TOOL_LINERULES_H_
#define VMETRICS_TOOL_LINERULES_H_

#include <cstdint>
#include <string_view>
#include <vector>

#include "catalogue/DefinitionLint.h"

namespace vmetrics {

/// About the line `number` of a file, as ReadDefinitions gives it.
std::vector<LintFinding> FindingsInLine(DefinitionKind kind, std::uint64_t number,
                                        std::string_view line);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LINERULES_H_
