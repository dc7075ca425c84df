/// What the subcommands have in common.
#ifndef VMETRICS_TOOL_COMMAND_H_
#define VMETRICS_TOOL_COMMAND_H_

#include <CLI/CLI.hpp>
#include <functional>
#include <stdexcept>

#include "Terminal.h"

namespace vmetrics {

/// What the chosen subcommand does; returns the exit status.
using Action = std::function<int()>;

// Each adds one subcommand to the program, which sets `action` when it is chosen.
void AddCatalogue(CLI::App& program, Action& action);
void AddCheck(CLI::App& program, Action& action);
void AddDecode(CLI::App& program, Action& action);
void AddEncode(CLI::App& program, Action& action);
void AddStats(CLI::App& program, Action& action);
void AddTrace(CLI::App& program, Action& action);
/// `command` is what it is to run: name, arguments, null; or a null pointer where there is nothing.
void AddRun(CLI::App& program, Action& action, char** command);

/// Wrong usage that only a subcommand itself can tell.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_COMMAND_H_
