/// Cuts a text that comes in pieces into lines, in bounded memory.
#ifndef VMETRICS_TOOL_LINECUTTER_H_
#define VMETRICS_TOOL_LINECUTTER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vmetrics {

class LineCutter {
 public:
  static constexpr std::size_t kLongestLine = std::size_t{4} << 20;

  /// Lines of more than `longest` bytes are passed over; no more than that is ever kept.
  explicit LineCutter(std::size_t longest = kLongestLine) : longest_(longest) {}

  /// Calls `take(line)` for each line that ends in `piece`, without its line break. The line is
  /// good for that call alone.
  template <typename Take>
  void Add(std::string_view piece, Take take) {
    for (std::size_t end = piece.find('\n'); end != piece.npos; end = piece.find('\n')) {
      EndLine(piece.substr(0, end), take);
      piece.remove_prefix(end + 1);
    }
    Keep(piece);
  }

  /// The same for a last line that ended without a line break, if there is one; begins anew.
  template <typename Take>
  void Finish(Take take) {
    if (!begun_.empty() || passingOver_) {
      EndLine({}, take);
    }
  }

  /// How many lines were passed over.
  std::uint64_t Overlong() const { return overlong_; }

 private:
  template <typename Take>
  void EndLine(std::string_view end, Take& take) {
    if (begun_.empty() && !passingOver_ && end.size() <= longest_) {
      take(end);  // As it stands, which spares the copy.
      return;
    }
    Keep(end);
    if (!passingOver_) {
      take(std::string_view(begun_));
    }
    begun_.clear();
    passingOver_ = false;
  }

  void Keep(std::string_view part) {
    if (!passingOver_ && part.size() > longest_ - begun_.size()) {
      passingOver_ = true;
      ++overlong_;
      begun_.clear();
    }
    if (!passingOver_) {
      begun_.append(part);
    }
  }

  const std::size_t longest_;
  std::string begun_;  ///< What has come of a line whose end has not.
  bool passingOver_ = false;
  std::uint64_t overlong_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_LINECUTTER_H_
