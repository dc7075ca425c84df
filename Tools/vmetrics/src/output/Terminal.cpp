#include "Terminal.h"

#include <fmt/core.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace vmetrics {

namespace {

constexpr std::size_t kUsualWidth = 80;

bool isPassingLineShown = false;
/// Whether standard output goes to a terminal, too.
bool isOutputBesideIt = false;

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): nobody sets any.
  return value != nullptr && *value != '\0';
}

bool HasColours() {
  const char* terminal = std::getenv("TERM");  // NOLINT(concurrency-mt-unsafe): as above.
  const bool isDumb = terminal == nullptr || std::string_view(terminal) == "dumb";
  return isatty(STDOUT_FILENO) == 1 && !IsSet("NO_COLOR") && !isDumb;
}

const char* CodeOf(Style style) {
  switch (style) {
    case Style::kBold:
      return "1";
    case Style::kDim:
      return "2";
    case Style::kRed:
      return "31";
    case Style::kYellow:
      return "33";
    case Style::kPlain:
      break;
  }
  return "0";
}

}  // namespace

std::size_t OutputWidth() {
  winsize size;
  const bool isTerminal = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return isTerminal ? size.ws_col : kUsualWidth;
}

bool HasUtf8Locale() {
  for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* name = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): as above.
    if (name != nullptr && *name != '\0') {
      // The name is enough: a locale that is not installed is one that the terminal may have.
      return IsUtf8Locale(name);
    }
  }
  return false;
}

bool IsUtf8Locale(std::string_view name) {
  const std::string_view behindDot = name.substr(std::min(name.find('.'), name.size()));
  std::string codeset;
  for (const char c : behindDot.substr(0, behindDot.find('@'))) {
    if (c != '.' && c != '-') {
      codeset += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    }
  }
  return codeset == "utf8";
}

std::string Styled(Style style, std::string_view text) {
  static const bool kHasColours = HasColours();
  return kHasColours && style != Style::kPlain
             ? fmt::format("\033[{}m{}\033[0m", CodeOf(style), text)
             : std::string(text);
}

void ShowPassingLine(std::string_view text) {
  WriteToStandardError(fmt::format("\r{}\033[K", text));
  isPassingLineShown = true;
  isOutputBesideIt = isatty(STDOUT_FILENO) == 1;
}

void RemovePassingLine() {
  if (isPassingLineShown) {
    WriteToStandardError("\r\033[K");
    isPassingLineShown = false;
  }
}

void Write(std::string_view text) {
  if (isOutputBesideIt) {
    RemovePassingLine();
  }
  std::fwrite(text.data(), 1, text.size(), stdout);
}

void FinishOutput() {
  errno = 0;
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    throw std::system_error(errno != 0 ? errno : EIO, std::generic_category(), "standard output");
  }
}

void WriteToStandardError(std::string_view text) {
  // Where nobody can be told there is nothing to be done about it: the work goes on.
  std::fwrite(text.data(), 1, text.size(), stderr);
  std::fflush(stderr);
}

void Complain(std::string_view text) {
  RemovePassingLine();
  WriteToStandardError(fmt::format("vmetrics: {}\n", text));
}

}  // namespace vmetrics
