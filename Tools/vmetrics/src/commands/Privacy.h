/// What the tool keeps to itself unless told otherwise.
#ifndef VMETRICS_TOOL_PRIVACY_H_
#define VMETRICS_TOOL_PRIVACY_H_

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>

namespace vmetrics {

/// What stands in the place of a value that is not shown.
constexpr std::string_view kMask = "***";

class Privacy {
 public:
  /// Adds the option --show-private to the subcommand; `what` it shows, for its help.
  void AddTo(CLI::App& command,
             const std::string& what = "the values of private metrics and user names");

  /// Whether the values of a metric are to be masked: it is private in the catalogue. `eventId` is
  /// a numeric ID in decimal or an event ID; an ID that is not in the catalogue is not private.
  bool IsMasked(std::string_view eventId) const;

  /// Whether user names are to be masked.
  bool AreUserNamesMasked() const { return !showsPrivate_; }

 private:
  bool showsPrivate_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_PRIVACY_H_
