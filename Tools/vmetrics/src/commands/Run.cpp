#include "Command.h"

namespace vmetrics {

void AddRun(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("run", "");
  command->callback([&action] { action = [] { return kSuccess; }; });
}

}  // namespace vmetrics
