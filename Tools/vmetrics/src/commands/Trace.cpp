#include "Command.h"

namespace vmetrics {

void AddTrace(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("trace", "");
  command->callback([&action] { action = [] { return kSuccess; }; });
}

}  // namespace vmetrics
