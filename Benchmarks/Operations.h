/// One call of each of the library's operations, on the real platform: what is counted, in
/// instructions and in allocations.
#ifndef BENCHMARKS_OPERATIONS_H_
#define BENCHMARKS_OPERATIONS_H_

#include <string>
#include <vector>

struct Operation {
  const char* name;  ///< Letters, digits and underscores.
  bool (*call)();    ///< Whether it succeeded. Asks for no memory but what a caller would.
};

const std::vector<Operation>& Operations();

/// Makes ready for up to `calls` calls of each operation, which write their files to `directory`,
/// and ends a step. False when the platform refuses the directory.
bool PrepareOperations(const std::string& directory, int calls);

#endif  // BENCHMARKS_OPERATIONS_H_
