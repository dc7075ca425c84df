/// Cuts bytes that come in pieces into the packed records that they are, in bounded memory.
#ifndef VMETRICS_TOOL_RECORDCUTTER_H_
#define VMETRICS_TOOL_RECORDCUTTER_H_

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "RecordKind.h"

namespace vmetrics {

class RecordCutter {
 public:
  explicit RecordCutter(RecordKind kind) : kind_(kind), headerSize_(HeaderSize(kind)) {}

  /// Calls `take(record)` for each record that ends in `piece`; it is good for that call alone.
  /// Takes nothing any more once a record has announced more than kLongestValue bytes: records are
  /// found by their lengths alone, and such a length is most likely no length.
  template <typename Take>
  void Add(std::string_view piece, Take take) {
    while (!piece.empty() && !isLost_) {
      if (begun_.empty() && IsWhole(piece.substr(0, WantedSize(piece)))) {
        // As it stands, which spares the copy.
        piece.remove_prefix(Pass(piece.substr(0, WantedSize(piece)), take));
        continue;
      }
      const std::size_t part = std::min(WantedSize(begun_) - begun_.size(), piece.size());
      begun_.append(piece, 0, part);
      piece.remove_prefix(part);
      isLost_ = HasHeader(begun_) && AnnouncedLength(kind_, begun_.data()) > kLongestValue;
      if (!isLost_ && IsWhole(begun_)) {
        Pass(begun_, take);
        begun_.clear();
      }
    }
  }

  /// Where among all bytes the record begins that is taken, or the one that is not whole.
  std::uint64_t Offset() const { return offset_; }

  /// What has come of a record that is not whole: when nothing follows, it is cut short.
  std::string_view Rest() const { return begun_; }

  /// Whether the rest is a header that announces too much.
  bool IsLost() const { return isLost_; }

 private:
  bool HasHeader(std::string_view begun) const { return begun.size() >= headerSize_; }

  /// The size that `begun` must have before more can be said of it: that of a header, then that of
  /// the record.
  std::size_t WantedSize(std::string_view begun) const {
    return HasHeader(begun) ? headerSize_ + AnnouncedLength(kind_, begun.data()) : headerSize_;
  }

  bool IsWhole(std::string_view begun) const {
    return HasHeader(begun) && begun.size() == WantedSize(begun) &&
           begun.size() <= headerSize_ + kLongestValue;
  }

  template <typename Take>
  std::size_t Pass(std::string_view record, Take& take) {
    take(record);
    offset_ += record.size();
    return record.size();
  }

  const RecordKind kind_;
  const std::size_t headerSize_;
  std::string begun_;
  std::uint64_t offset_ = 0;
  bool isLost_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDCUTTER_H_
