/// A few names for a message, and how many more there are.
#ifndef VMETRICS_TOOL_NAMELIST_H_
#define VMETRICS_TOOL_NAMELIST_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace vmetrics {

class NameList {
 public:
  /// Names of unknown origin are made fit for a terminal.
  void Add(std::string_view name);

  bool IsEmpty() const { return count_ == 0; }

  /// "spanId, args, foo and 2 more".
  std::string ToString() const;

 private:
  std::string names_;  ///< The first of them.
  std::size_t count_ = 0;
};

/// `text` fit for a terminal, and cut where it is long.
std::string Shortened(std::string_view text);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_NAMELIST_H_
