#include "Format.h"

#include <fmt/format.h>

#include "ArgumentChecks.h"

namespace vmetrics {

void AddFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names) {
  format = names.front();
  command.add_option("--format", format)
      ->option_text("FORMAT")
      ->description(fmt::format("{}; without this option {}", fmt::join(names, ", "), format))
      ->check(OneOf(names));
}

}  // namespace vmetrics
