/// Metrics that are not built in: files of definitions that a user names.
#ifndef VMETRICS_TOOL_DEFINITIONS_H_
#define VMETRICS_TOOL_DEFINITIONS_H_

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "DefinitionText.h"
#include "LogReader.h"

namespace vmetrics {

/// A file of definitions, one a line.
struct DefinitionFile {
  DefinitionKind kind;
  std::string name;
};

/// Takes a definition: its place, and its line as it stands but for the line feed. A byte order
/// mark may be in front of the first line of a file, a carriage return at the end of any.
using TakeDefinition = std::function<void(const LinePlace&, std::string_view line)>;

/// Reads a file of definitions, but for blank lines and those that begin with "#". A line of more
/// than LineCutter::kLongestLine bytes is told to `overlong`. Throws InputError, its text fit for a
/// terminal.
void ReadDefinitions(const DefinitionFile& file, const TakeDefinition& take,
                     const std::function<void(const LinePlace&)>& overlong);

/// The options --definitions FILE and --event-definitions FILE, each as often as one likes.
class Definitions {
 public:
  void AddTo(CLI::App& command);

  /// Registers what the files define, byte order marks and carriage returns at the ends of lines
  /// aside; to be called once, before the catalogue is used. Complains of each line that is
  /// refused, as "FILE:LINE: reason", and goes on. A file that cannot be read throws InputError:
  /// nothing that is printed without it would be right. `others` are the files that the subcommand
  /// reads besides; throws UsageError where standard input is asked for twice.
  void Register(const std::vector<std::string>& others = {});

  /// `status`, or that of trouble where a definition was refused.
  int Conclude(int status) const;

  /// Throws UsageError where standard input is named twice among them and `others`.
  void RefuseStandardInputTwice(std::vector<std::string> others = {}) const;

  /// In the order in which they are registered.
  std::vector<DefinitionFile> Files() const;

 private:
  std::vector<std::string> numeric_;
  std::vector<std::string> events_;
  bool hasRefused_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_DEFINITIONS_H_
