/// Finds the library's lines within a text by how they begin.
#ifndef VMETRICS_TOOL_LINESEARCH_H_
#define VMETRICS_TOOL_LINESEARCH_H_

#include <cstddef>
#include <string_view>
#include <vector>

namespace vmetrics {

/// Whether the text begins as the library's lines do.
bool BeginsLikeALine(std::string_view text);

/// Whether a JSON text that was cut off here could go on with an object, blanks aside.
bool AsksForValue(std::string_view fragment);

class LineSearch {
 public:
  /// The parts of `text` that begin as lines do and go on to the brace that closes the first one;
  /// whether they are JSON is left to be checked. In their order; none lies within another. One
  /// that goes on as the member of something cut off, {"a":{"eventId":"b"},"c, is none.
  ///
  /// Takes time linear in the text's length, whatever the text. The result is good until the next
  /// call.
  const std::vector<std::string_view>& In(std::string_view text);

 private:
  void Begin(std::string_view text, std::size_t at);
  void Close(std::string_view text, std::size_t at);

  std::vector<std::size_t> open_;  ///< Where the brackets stand that are open.
  bool inString_ = false;
  std::vector<std::string_view> found_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LINESEARCH_H_
