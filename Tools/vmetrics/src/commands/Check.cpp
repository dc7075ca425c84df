#include "Command.h"

namespace vmetrics {

void AddCheck(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("check", "");
  command->callback([&action] { action = [] { return kSuccess; }; });
}

}  // namespace vmetrics
