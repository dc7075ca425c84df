#include "Command.h"

namespace vmetrics {

void AddEncode(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("encode", "");
  command->callback([&action] { action = [] { return kSuccess; }; });
}

}  // namespace vmetrics
