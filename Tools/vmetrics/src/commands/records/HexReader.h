/// Bytes written as hexadecimal digits.
#ifndef VMETRICS_TOOL_HEXREADER_H_
#define VMETRICS_TOOL_HEXREADER_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace vmetrics {

/// Reads a text that comes in pieces: two digits a byte, white space anywhere, and comments from
/// "#" to the end of their line.
class HexReader {
 public:
  /// Appends the bytes that stand in `text`. Returns false at a character that has no place there,
  /// of which Fault tells then.
  bool Add(std::string_view text, std::string& bytes);

  /// At the end of the text. Returns false where it ends in the middle of a byte.
  bool Finish();

  /// "3:14: 'g' is no hexadecimal digit": line and column from 1, and what is wrong there.
  const std::string& Fault() const { return fault_; }

 private:
  bool Fail(std::string_view what);
  void AddDigit(unsigned int digit, std::string& bytes);

  std::uint64_t line_ = 1;
  std::uint64_t column_ = 0;  ///< Of the last character.
  bool inComment_ = false;
  bool isHalf_ = false;  ///< Whether a byte's first digit waits for the second.
  unsigned int first_ = 0;
  std::string fault_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_HEXREADER_H_
