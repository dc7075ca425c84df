#include "Operands.h"

#include <algorithm>

#include "Command.h"

namespace vmetrics {

CLI::Option* AddOperands(CLI::App& command, const std::string& name, const std::string& type,
                         std::vector<std::string>& operands, const std::string& description) {
  const auto take = [&operands](const CLI::results_t& results) {
    operands = results;
    return true;
  };
  // An option of so many operands, rather than of more than it needs: only those are split up. That
  // there are fewer is checked under another policy alone.
  constexpr int kMany = 1 << 20;
  return command.add_option(name, CLI::callback_t(take), description)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->expected(kMany, CLI::detail::expected_max_vector_size)
      ->type_name(type);
}

void RefuseStandardInputTwice(const std::vector<std::string>& files) {
  if (std::count(files.begin(), files.end(), "-") > 1) {
    throw UsageError("standard input can be read only once: name a file instead of -");
  }
}

}  // namespace vmetrics
