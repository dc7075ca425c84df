/// Writes findings to standard output, in order as far as memory allows, and counts them.
#ifndef VMETRICS_TOOL_FINDINGS_H_
#define VMETRICS_TOOL_FINDINGS_H_

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "Finding.h"

namespace vmetrics {

class Findings {
 public:
  struct Options {
    std::array<bool, kFindingKinds.size()> isIgnored{};
    std::uint64_t most = std::numeric_limits<std::uint64_t>::max();  ///< That are written.
    bool isJson = false;
  };

  explicit Findings(const Options& options) : options_(options) {}

  /// The file that the next findings are about; files are numbered in this order, from 0.
  void AddFile(std::string name) { files_.push_back(std::move(name)); }

  /// "old.log:17".
  std::string Describe(const Place& place) const;

  /// Whether findings of the kind count at all; to spare the making of messages that nobody sees.
  bool AreWanted(FindingKind kind) const {
    return !options_.isIgnored[static_cast<std::size_t>(kind)];
  }

  /// Takes a finding, unless its kind is ignored.
  void Add(FindingKind kind, const Place& place, std::string message);

  /// Writes those that wait; to be called once, after the last.
  void Finish();

  std::uint64_t Count() const { return count_; }

  /// "3 findings: 2 used-time, 1 glued"; "no finding".
  std::string Summary() const;

 private:
  void WriteWaiting();
  void Write(const Finding& finding) const;

  const Options options_;
  std::vector<std::string> files_;  ///< Their names as they stand.
  std::vector<Finding> waiting_;
  std::uint64_t written_ = 0;
  std::uint64_t count_ = 0;
  std::array<std::uint64_t, kFindingKinds.size()> counts_{};
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_FINDINGS_H_
