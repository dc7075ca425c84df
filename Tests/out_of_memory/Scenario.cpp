#include "Scenario.h"

#include "Host.h"

std::vector<Scenario> AllScenarios() {
  std::vector<Scenario> all;
  for (const auto& some :
       {CatalogueScenarios(), RenderingScenarios(), ReportScenarios(), TracingScenarios()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

void Prepare(const Scenario& scenario) {
  TheHost().Reset();
  scenario.prepare();
}
