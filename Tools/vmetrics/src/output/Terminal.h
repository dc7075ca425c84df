/// What the tool writes to, and how.
#ifndef VMETRICS_TOOL_TERMINAL_H_
#define VMETRICS_TOOL_TERMINAL_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace vmetrics {

/// Exit statuses, as filters have them.
enum ExitStatus : int {
  kSuccess = 0,
  kFindings = 1,  ///< What was asked about was found to be wrong.
  kTrouble = 2    ///< Wrong usage, unreadable input or output that could not be written.
};

/// Columns of standard output where it is a terminal, otherwise 80.
std::size_t OutputWidth();

/// Whether the user's locale, as LC_ALL, LC_CTYPE or LANG names it, is one of UTF-8: whether more
/// than ASCII may be shown where that is our choice.
bool HasUtf8Locale();

/// Whether a locale of that name is one of UTF-8: "de_DE.UTF-8", "C.utf8@euro". As everywhere, it
/// does not matter how the encoding is written.
bool IsUtf8Locale(std::string_view name);

/// How a text stands out, where there are colours.
enum class Style { kPlain, kBold, kDim, kRed, kYellow };

/// `text` in that style, if standard output is a terminal, NO_COLOR is unset or empty and TERM is
/// not "dumb"; otherwise as it is.
std::string Styled(Style style, std::string_view text);

/// Shows a text on standard error, which has to be a terminal, in place of the one shown before. It
/// stays until something is written to the same terminal, or it is removed.
void ShowPassingLine(std::string_view text);
void RemovePassingLine();

/// Writes to standard output, through its buffer.
void Write(std::string_view text);

/// Empties the buffer. Throws std::system_error where standard output could not take everything.
void FinishOutput();

/// Writes to standard error, at once. A failure is passed over.
void WriteToStandardError(std::string_view text);

/// Writes "vmetrics: ", the text and a line break to standard error.
void Complain(std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TERMINAL_H_
