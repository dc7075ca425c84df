#include "HelpFormatter.h"

#include <sstream>

namespace vmetrics {

namespace {

constexpr std::size_t kWidth = 80;

/// The text with line breaks in the place of blanks, so that no line has more than `width`
/// characters unless a word has.
std::string Wrapped(std::string text, std::size_t width) {
  std::size_t begin = 0;
  std::size_t blank = 0;  // The last one; none of the line where it is in front of `begin`.
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n') {
      begin = at + 1;
      continue;
    }
    blank = text[at] == ' ' ? at : blank;
    if (at - begin >= width && blank > begin) {
      text[blank] = '\n';
      begin = blank + 1;
    }
  }
  return text;
}

}  // namespace

std::string HelpFormatter::make_description(const CLI::App* app) const {
  return Wrapped(Formatter::make_description(app), kWidth);
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  return Wrapped(Formatter::make_option_desc(option), kWidth - get_column_width());
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  std::ostringstream text;
  const std::size_t column = get_column_width();
  CLI::detail::format_help(text, command->get_display_name(true),
                           Wrapped(command->get_description(), kWidth - column), column);
  return text.str();
}

}  // namespace vmetrics
