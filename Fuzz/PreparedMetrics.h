/// The metrics that fuzzers choose from: of each type, with harmless and hostile names, incomplete
/// ones, and all that are built in.
#ifndef FUZZ_PREPAREDMETRICS_H_
#define FUZZ_PREPAREDMETRICS_H_

#include <cstdint>
#include <string>

#include "Input.h"
#include "Metrics.h"

/// As the oracle knows them. The first call enters them in the library's catalogue, too.
const Oracle::Metrics& PreparedMetrics();

/// The ID of one of them, or any other.
std::uint32_t ChosenId(Input& input);
std::string ChosenEvent(Input& input);

#endif  // FUZZ_PREPAREDMETRICS_H_
