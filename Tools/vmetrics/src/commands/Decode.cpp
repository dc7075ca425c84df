#include "Command.h"

namespace vmetrics {

void AddDecode(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("decode", "");
  command->callback([&action] { action = [] { return kSuccess; }; });
}

}  // namespace vmetrics
