// The forms of the catalogue that programs read.

#include <fmt/format.h>

#include <string>

#include "Csv.h"
#include "JsonArray.h"
#include "MetricId.h"
#include "Terminal.h"
#include "catalogue/CatalogueFormats.h"

namespace vmetrics {

namespace {

void AddUnlessEmpty(VJson::Value& object, const char* key, std::string_view text) {
  if (!text.empty()) {
    object.AddJsonValue(key, std::string(text));
  }
}

VJson::Value ObjectOf(const CatalogueRow& row) {
  VJson::Value object;
  object.AddJsonValue("eventId", row.id ? fmt::to_string(*row.id) : std::string(row.eventId));
  if (row.id) {
    object.AddJsonValue("hexadecimal", HexadecimalId(*row.id));
  }
  object.AddJsonValue("type", row.Type());
  object.AddJsonValue("name", row.Name());
  object.AddJsonValue("private", row.PrivateFlag());
  if (row.id) {
    const unsigned int group = GroupOf(*row.id);
    object.AddJsonValue("group", HexadecimalByte(group));
    AddUnlessEmpty(object, "groupTitle", TitleOfGroup(group));
    AddUnlessEmpty(object, "side", NameOfSide(SideOf(*row.id)));
  }
  return object;
}

}  // namespace

void WriteJson(const CatalogueRows& rows) {
  JsonArray array;
  for (const CatalogueRow& row : rows) {
    array.Add(ObjectOf(row));
  }
  array.Finish();
}

void WriteCsv(const CatalogueRows& rows) {
  Write(CsvLine(
      {"eventId", "hexadecimal", "type", "name", "private", "group", "groupTitle", "side"}));
  for (const CatalogueRow& row : rows) {
    if (row.id) {
      const unsigned int group = GroupOf(*row.id);
      Write(CsvLine({fmt::to_string(*row.id), HexadecimalId(*row.id), row.Type(), row.Name(),
                     row.PrivateFlag(), HexadecimalByte(group), TitleOfGroup(group),
                     NameOfSide(SideOf(*row.id))}));
    } else {
      Write(CsvLine({row.eventId, "", row.Type(), row.Name(), row.PrivateFlag(), "", "", ""}));
    }
  }
}

}  // namespace vmetrics
