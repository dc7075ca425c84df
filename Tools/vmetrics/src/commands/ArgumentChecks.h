/// What the values of options may be.
#ifndef VMETRICS_TOOL_ARGUMENTCHECKS_H_
#define VMETRICS_TOOL_ARGUMENTCHECKS_H_

#include <CLI/CLI.hpp>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace vmetrics {

/// One of the names.
CLI::Validator OneOf(const std::vector<std::string>& names);

/// A whole number of the range.
CLI::Validator WholeNumber(std::uint64_t least = 0,
                           std::uint64_t greatest = std::numeric_limits<std::uint64_t>::max());

/// A finite number that is not negative: what the parser by itself takes for a number, infinity and
/// "nan" included, is not enough.
CLI::Validator FiniteNumber();

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_ARGUMENTCHECKS_H_
