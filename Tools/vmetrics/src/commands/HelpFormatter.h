/// The help of the program and its subcommands, in lines that fit into a terminal.
#ifndef VMETRICS_TOOL_HELPFORMATTER_H_
#define VMETRICS_TOOL_HELPFORMATTER_H_

#include <CLI/CLI.hpp>
#include <string>

namespace vmetrics {

class HelpFormatter : public CLI::Formatter {
 public:
  // NOLINTBEGIN(readability-identifier-naming): the names of the base class.
  std::string make_description(const CLI::App* app) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
  std::string make_subcommand(const CLI::App* command) const override;
  // NOLINTEND(readability-identifier-naming)
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_HELPFORMATTER_H_
