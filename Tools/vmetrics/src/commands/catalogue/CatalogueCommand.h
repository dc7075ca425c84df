/// The parts of the subcommand "catalogue".
#ifndef VMETRICS_TOOL_CATALOGUECOMMAND_H_
#define VMETRICS_TOOL_CATALOGUECOMMAND_H_

#include "Command.h"

namespace vmetrics {

/// Adds the subcommand "lint" to it.
CLI::App* AddCatalogueLint(CLI::App& catalogue, Action& action);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_CATALOGUECOMMAND_H_
