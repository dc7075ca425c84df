/// Which metrics a user asks for.
#ifndef VMETRICS_TOOL_CATALOGUEFILTER_H_
#define VMETRICS_TOOL_CATALOGUEFILTER_H_

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "catalogue/CatalogueRow.h"

namespace vmetrics {

class CatalogueFilter {
 public:
  /// Adds the options to the subcommand.
  void AddTo(CLI::App& command);

  /// Whether anything is asked for at all.
  bool IsSet() const;

  /// Whether the metric is one that all options given ask for.
  bool Matches(const CatalogueRow& row) const;

 private:
  std::optional<std::string> group_;
  std::optional<std::string> side_;
  std::optional<std::string> type_;
  std::optional<std::string> name_;
  std::optional<std::string> id_;
  bool isPrivate_ = false;
  bool isPublic_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_CATALOGUEFILTER_H_
