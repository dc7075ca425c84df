#include "Command.h"

namespace vmetrics {

void AddCatalogue(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("catalogue", "");
  command->callback([&action] { action = [] { return kSuccess; }; });
}

}  // namespace vmetrics
