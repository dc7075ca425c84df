#include <fmt/core.h>

#include <memory>

#include "Command.h"
#include "LogFiles.h"

namespace vmetrics {

void AddStats(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("stats", "");
  const auto files = std::make_shared<LogFiles>();
  files->AddTo(*command);
  command->callback([&action, files] {
    action = [files] {
      unsigned long steps = 0;
      files->Read({[&steps](const LinePlace&, const LogEntry& entry) { steps += entry.IsStep(); },
                   nullptr, nullptr, nullptr, nullptr});
      fmt::print("{} steps\n", steps);
      return files->Conclude(kSuccess);
    };
  });
}

}  // namespace vmetrics
