#include "catalogue/CatalogueFilter.h"

#include <algorithm>
#include <charconv>

#include "ArgumentChecks.h"
#include "MetricId.h"

namespace vmetrics {

namespace {

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Whether `part` stands in `text`, the case of ASCII letters aside.
bool Contains(std::string_view text, std::string_view part) {
  const auto isSame = [](char a, char b) { return LowerCase(a) == LowerCase(b); };
  return part.empty() ||
         std::search(text.begin(), text.end(), part.begin(), part.end(), isSame) != text.end();
}

/// The number of a group, "12" or "0x12"; what begins with a letter is a title.
std::optional<unsigned int> ParseGroup(std::string_view text) {
  if (text.empty() || text.front() < '0' || text.front() > '9') {
    return std::nullopt;
  }
  if (text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X") {
    text.remove_prefix(2);
  }
  unsigned int group = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, group, 16);
  return result.ec == std::errc() && result.ptr == end ? std::optional(group) : std::nullopt;
}

bool IsInGroup(const CatalogueRow& row, std::string_view wanted) {
  if (!row.id) {
    return false;
  }
  const unsigned int group = GroupOf(*row.id);
  const std::optional<unsigned int> number = ParseGroup(wanted);
  return number ? group == *number : Contains(TitleOfGroup(group), wanted);
}

bool HasId(const CatalogueRow& row, const std::string& wanted) {
  return row.id ? ParseMetricId(wanted) == row.id : row.eventId == wanted;
}

}  // namespace

void CatalogueFilter::AddTo(CLI::App& command) {
  command
      .add_option("--group", group_,
                  "The group: its number in hexadecimal, or part of its title, \"display\"")
      ->option_text("GROUP");
  command.add_option("--side", side_, "Who reports the metric: client or server")
      ->option_text("SIDE")
      ->check(OneOf({"client", "server"}));
  command.add_option("--type", type_, "The type of the value, as \"int\" or \"json\"")
      ->option_text("TYPE");
  // The blank keeps the help free of what excludes what.
  CLI::Option* isPrivate = command.add_flag("--private", isPrivate_, "Private metrics");
  isPrivate->option_text(" ");
  command.add_flag("--public", isPublic_, "Metrics that are not private")
      ->option_text(" ")
      ->excludes(isPrivate);
  command.add_option("--name", name_, "Part of the name; capitals do not matter")
      ->option_text("TEXT");
  command
      .add_option("--id", id_, "The ID: in decimal, in hexadecimal with 0x in front, an event ID")
      ->option_text("ID");
}

bool CatalogueFilter::IsSet() const {
  return group_ || side_ || type_ || name_ || id_ || isPrivate_ || isPublic_;
}

bool CatalogueFilter::Matches(const CatalogueRow& row) const {
  return (!group_ || IsInGroup(row, *group_)) &&
         (!side_ || (row.id && NameOfSide(SideOf(*row.id)) == *side_)) &&
         (!type_ || row.Type() == *type_) && (!name_ || Contains(row.Name(), *name_)) &&
         (!id_ || HasId(row, *id_)) && (!isPrivate_ || row.IsPrivate()) &&
         (!isPublic_ || !row.IsPrivate());
}

}  // namespace vmetrics
