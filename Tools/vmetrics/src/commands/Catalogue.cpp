#include <algorithm>
#include <iterator>
#include <memory>
#include <string>

#include "Command.h"
#include "Definitions.h"
#include "Format.h"
#include "catalogue/CatalogueCommand.h"
#include "catalogue/CatalogueFilter.h"
#include "catalogue/CatalogueFormats.h"

namespace vmetrics {

namespace {

struct Request {
  Definitions definitions;
  CatalogueFilter filter;
  std::string format;
};

int Show(Request& request) {
  request.definitions.Register();
  const CatalogueRows all = AllMetrics();
  CatalogueRows rows;
  std::copy_if(all.begin(), all.end(), std::back_inserter(rows),
               [&request](const CatalogueRow& row) { return request.filter.Matches(row); });
  if (request.format == "json") {
    WriteJson(rows);
  } else if (request.format == "csv") {
    WriteCsv(rows);
  } else if (request.format == "markdown") {
    WriteMarkdown(rows, request.definitions.Files().empty() && !request.filter.IsSet());
  } else {
    WriteTable(rows);
  }
  return request.definitions.Conclude(rows.empty() ? kFindings : kSuccess);
}

constexpr const char* kDescription = "Shows the metrics that the library knows";

constexpr const char* kFooter =
    "Exit status: 0; 1 if no metric matches all options; 2 in trouble.\n\n"
    "Example: what the server says about the display\n"
    "  vmetrics catalogue --group display --side server";

}  // namespace

void AddCatalogue(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("catalogue", kDescription);
  command->footer(kFooter);
  const auto request = std::make_shared<Request>();
  request->filter.AddTo(*command);
  request->definitions.AddTo(*command);
  AddFormat(*command, request->format, {"table", "json", "csv", "markdown"});
  const CLI::App* lint = AddCatalogueLint(*command, action);
  command->callback([&action, request, command, lint] {
    if (!lint->parsed()) {
      action = [request] { return Show(*request); };
      return;
    }
    for (const CLI::Option* option : command->get_options()) {
      if (option->count() > 0) {
        throw UsageError(option->get_name() +
                         " stands in front of lint, whose options stand behind it");
      }
    }
  });
}

}  // namespace vmetrics
