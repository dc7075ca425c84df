#include "LogEntry.h"

#include <simdjson.h>

#include <algorithm>
#include <charconv>
#include <string>

#include "JsonBlanks.h"
#include "JsonValidity.h"

namespace vmetrics {

namespace {

namespace ondemand = simdjson::ondemand;

template <typename Number>
std::optional<Number> NumberIn(const Member& member) {
  Number number;
  const char* end = member.text.data() + member.text.size();
  const std::from_chars_result result = std::from_chars(member.text.data(), end, number);
  if (member.kind != JsonKind::kNumber || result.ec != std::errc() || result.ptr != end) {
    return std::nullopt;
  }
  return number;
}

JsonKind KindOf(ondemand::json_type type) {
  switch (type) {
    case ondemand::json_type::object:
      return JsonKind::kObject;
    case ondemand::json_type::array:
      return JsonKind::kArray;
    case ondemand::json_type::string:
      return JsonKind::kString;
    case ondemand::json_type::number:
      return JsonKind::kNumber;
    case ondemand::json_type::boolean:
      return JsonKind::kBoolean;
    case ondemand::json_type::null:
      break;
  }
  return JsonKind::kNull;
}

}  // namespace

std::optional<std::int64_t> Member::Integer() const { return NumberIn<std::int64_t>(*this); }
std::optional<std::uint64_t> Member::Unsigned() const { return NumberIn<std::uint64_t>(*this); }
std::optional<double> Member::Double() const { return NumberIn<double>(*this); }

const Member* LogEntry::Find(const std::vector<Member>& members, std::string_view key) {
  const auto found = std::find_if(members.begin(), members.end(),
                                  [key](const Member& member) { return member.key == key; });
  return found == members.end() ? nullptr : &*found;
}

std::string_view LogEntry::Text(std::string_view key) const {
  const Member* member = Find(key);
  return member != nullptr && member->kind == JsonKind::kString ? member->text : std::string_view();
}

bool LogEntry::IsStep() const {
  const Member* name = FindInArgs("stepName");
  return !Text("spanId").empty() && name != nullptr && name->kind == JsonKind::kString;
}

struct LogEntryParser::Parser {
  bool TakeObject(ondemand::object object, std::vector<Member>& members, int depth);
  bool TakeValue(ondemand::value& value, Member& member, int depth);

  simdjson::ondemand::parser parser;
  ondemand::document document;
  std::string text;  ///< With room behind it, into which the parser may read.
  LogEntry entry;
};

bool LogEntryParser::Parser::TakeObject(ondemand::object object, std::vector<Member>& members,
                                        int depth) {
  for (auto result : object) {
    Member& member = members.emplace_back();
    if (result.error() != simdjson::SUCCESS ||
        result.value_unsafe().unescaped_key().get(member.key) != simdjson::SUCCESS ||
        !TakeValue(result.value_unsafe().value(), member, depth)) {
      return false;
    }
  }
  return true;
}

bool LogEntryParser::Parser::TakeValue(ondemand::value& value, Member& member, int depth) {
  ondemand::json_type type;
  if (value.type().get(type) != simdjson::SUCCESS) {
    return false;
  }
  member.kind = KindOf(type);
  if (type == ondemand::json_type::string) {
    return value.get_string().get(member.text) == simdjson::SUCCESS;
  }
  member.text = WithoutTrailingBlanks(value.raw_json_token());
  if (type == ondemand::json_type::object && depth == 1 && member.key == "args" &&
      entry.args.empty()) {
    ondemand::object args;
    if (value.get_object().get(args) != simdjson::SUCCESS || !TakeObject(args, entry.args, 2)) {
      return false;
    }
  } else if (!IsValid(value, depth)) {
    return false;
  }
  const char* end = nullptr;
  if ((type == ondemand::json_type::object || type == ondemand::json_type::array) &&
      document.current_location().get(end) == simdjson::SUCCESS) {
    const char* begin = member.text.data();
    member.text = WithoutTrailingBlanks({begin, static_cast<std::size_t>(end - begin)});
  }
  return true;
}

LogEntryParser::LogEntryParser() : parser_(std::make_unique<Parser>()) {}

LogEntryParser::~LogEntryParser() = default;

const LogEntry* LogEntryParser::Parse(std::string_view text) {
  Parser& parser = *parser_;
  parser.entry.members.clear();
  parser.entry.args.clear();
  parser.text.assign(text).append(simdjson::SIMDJSON_PADDING, ' ');
  ondemand::object object;
  const bool isObject = parser.parser.iterate(parser.text.data(), text.size(), parser.text.size())
                                .get(parser.document) == simdjson::SUCCESS &&
                        parser.document.get_object().get(object) == simdjson::SUCCESS &&
                        parser.TakeObject(object, parser.entry.members, 1) &&
                        parser.document.current_location().error() == simdjson::OUT_OF_BOUNDS;
  return isObject ? &parser.entry : nullptr;
}

}  // namespace vmetrics
