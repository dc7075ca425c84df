/// Operands of a subcommand: any number of files or values.
#ifndef VMETRICS_TOOL_OPERANDS_H_
#define VMETRICS_TOOL_OPERANDS_H_

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace vmetrics {

/// Adds the last operand of `command`, which may be given any number of times. Each is taken as it
/// stands: by itself the parser makes two of "[1,2]" and none of "{}". `type` is how help calls
/// one, "FILE".
CLI::Option* AddOperands(CLI::App& command, const std::string& name, const std::string& type,
                         std::vector<std::string>& operands, const std::string& description);

/// Throws UsageError where "-", standard input, is named more than once among the files that a
/// subcommand is to read: whoever comes second would find it at its end, and take that for an empty
/// file.
void RefuseStandardInputTwice(const std::vector<std::string>& files);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_OPERANDS_H_
