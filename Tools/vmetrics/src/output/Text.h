/// Texts of unknown origin on a terminal.
#ifndef VMETRICS_TOOL_TEXT_H_
#define VMETRICS_TOOL_TEXT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vmetrics {

/// `text` with everything that a terminal would obey rather than show written as an escape, as in
/// JSON: control characters (0x00 to 0x1F, 0x7F, U+0080 to U+009F) and those that change the
/// direction of writing. An ill-formed UTF-8 sequence becomes U+FFFD.
std::string Printable(std::string_view text);

/// A name as a message tells it: printable, and "" in quotes where it is empty.
std::string PrintableName(std::string_view name);

/// Columns that a printable text takes; characters of East Asia take two.
std::size_t WidthOf(std::string_view text);

/// What stands, in one column, for the rest of a text that was cut: "…", or "~" where the user's
/// locale is not one of UTF-8.
std::string_view CutMark();

/// `text` cut to `width` columns, its last one then that mark, or filled up to them with blanks
/// behind.
std::string Fitted(std::string_view text, std::size_t width);

/// `text` with blanks in front of it up to `width` columns.
std::string AlignedRight(std::string_view text, std::size_t width);

/// "1 line", "2 lines".
std::string Counted(std::uint64_t count, std::string_view thing);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_TEXT_H_
