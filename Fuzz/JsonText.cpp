// Foreign JSON through Parse and ToString, and any bytes through members.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "IndependentJson.h"
#include "Input.h"
#include "RecordModel.h"
#include "StrictJson.h"
#include "VJson.h"
#include "Verdict.h"

namespace {

void ParseAndWrite(const std::string& text, const std::optional<std::string>& expected) {
  VJson::Value value;
  value.AddJsonValue("before", 1);
  Require(value.Parse(text) == expected.has_value(), "the verdict");
  RequireEqual(value.ToString(), expected.value_or("{\"before\":1}"), "the value");
  if (!expected.has_value()) {
    return;
  }
  VJson::Value again;
  Require(again.Parse(value.ToString()), "what was written parses");
  RequireEqual(again.ToString(), value.ToString(), "the same text again");
  Require(value.ToString().find_first_of("\n\r") == std::string::npos, "one line");
}

bool Contains(const std::string& text, char character) {
  return text.find(character) != std::string::npos;
}

/// The verdicts of others, where they have the same rules: they take a NUL for the end, one skips a
/// byte order mark, none knows a limit of nesting, both refuse numbers that a double cannot hold,
/// and RapidJSON takes half of a pair of surrogates.
void CompareVerdicts(const std::string& text, bool accepted) {
  if (Contains(text, '\0')) {
    Require(!accepted, "a NUL is refused");
    return;
  }
  if (IndependentJson::MayHaveLargeNumber(text)) {
    return;
  }
  Require(!accepted || IndependentJson::RapidAccepts(text), "RapidJSON accepts");
  const auto brackets =
      std::count(text.begin(), text.end(), '[') + std::count(text.begin(), text.end(), '{');
  const bool marked = text.rfind("\xEF\xBB\xBF", 0) == 0;
  if (brackets <= 128 && !marked) {
    Require(IndependentJson::NlohmannAccepts(text) == accepted, "nlohmann/json agrees");
  }
}

void AddMembers(const std::string& text, const std::optional<std::string>& json) {
  VJson::Value inner;
  inner.AddJsonValue(text, text);
  inner.AddJsonValue("c", text.c_str());
  Oracle::Object members = {{text, Oracle::Text(text)}, {"c", Oracle::Text(text.c_str())}};
  if (json.has_value()) {
    VJson::Value parsed;
    parsed.Parse(text);
    inner.Add(text, parsed);
    members.push_back({text, {Oracle::Value::Kind::kJson, *json}});
  }
  VJson::Value outer;
  outer.Add("inner", inner);
  const Oracle::Value nested{Oracle::Value::Kind::kObject, "", 0, false, members};
  RequireLine(outer.ToString(), Oracle::Line({{"inner", nested}}), "inner");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = Input(data, size).Rest();
  const std::optional<std::string> expected = Oracle::Compacted(text);
  ParseAndWrite(text, expected);
  CompareVerdicts(text, expected.has_value());
  AddMembers(text, expected);
  return 0;
}
