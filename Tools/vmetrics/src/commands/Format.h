/// The option --format, which several subcommands have.
#ifndef VMETRICS_TOOL_FORMAT_H_
#define VMETRICS_TOOL_FORMAT_H_

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace vmetrics {

/// Adds the option, which sets `format` to one of `names`; the first is the default.
void AddFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_FORMAT_H_
