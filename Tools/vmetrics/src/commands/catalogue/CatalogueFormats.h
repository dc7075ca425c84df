/// The forms in which rows of the catalogue are written to standard output.
#ifndef VMETRICS_TOOL_CATALOGUEFORMATS_H_
#define VMETRICS_TOOL_CATALOGUEFORMATS_H_

#include "catalogue/CatalogueRow.h"

namespace vmetrics {

/// For people. On a terminal that is too narrow for it, without the columns that repeat what the ID
/// says already.
void WriteTable(const CatalogueRows& rows);

/// An array of objects. They name an ID as metrics lines do, "eventId".
void WriteJson(const CatalogueRows& rows);

void WriteCsv(const CatalogueRows& rows);

/// A page, with a table for each group. `isBuiltIn`: whether the rows are those that the library
/// has by itself, all of them.
void WriteMarkdown(const CatalogueRows& rows, bool isBuiltIn);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_CATALOGUEFORMATS_H_
