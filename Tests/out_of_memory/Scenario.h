/// Calls of the exported functions, and what becomes of them when memory runs out on the way.
#ifndef SCENARIO_H_
#define SCENARIO_H_

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

struct Scenario {
  std::string name;
  std::string function;      ///< As Tests/golden/exported_symbols.txt calls it.
  std::string (*call)();     ///< Its result as text.
  void (*prepare)();         ///< Before each call, on a host that was reset.
  std::string (*inspect)();  ///< What cannot be seen, but asked for; after each call.

  /// What comes of the call when its first allocation fails, or one of the next ones ... in the
  /// order in which they appear, each once; at last what comes of it with memory to spare. Result
  /// or "bad_alloc" first, then all changes that can be seen, as Changes tells them.
  ///
  /// Only that one: the call asks for no memory.
  std::vector<std::string> outcomes;

  /// A call that fails leaves the table of transactions with more or less in it than before.
  bool changesTable = false;
};

/// All or nothing: std::bad_alloc and no trace, or `outcome`.
inline std::vector<std::string> NothingOr(const std::string& outcome) {
  return {"bad_alloc", outcome};
}

inline void Nothing() {}
inline std::string NothingToAsk() { return {}; }

inline void PrintTo(const Scenario& scenario, std::ostream* out) { *out << scenario.name; }

std::vector<Scenario> CatalogueScenarios();
std::vector<Scenario> RenderingScenarios();
std::vector<Scenario> ReportScenarios();
std::vector<Scenario> TracingScenarios();
std::vector<Scenario> AllScenarios();

/// Resets the host and brings it to where the scenario's call is made.
void Prepare(const Scenario& scenario);

inline std::string NameOfScenario(const testing::TestParamInfo<Scenario>& scenario) {
  return scenario.param.name;
}

#endif  // SCENARIO_H_
