#include "IndependentJson.h"

#include <rapidjson/document.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "TextModel.h"

namespace IndependentJson {
namespace {

using Nlohmann = nlohmann::ordered_json;
using Oracle::Member;
using Oracle::Object;
using Oracle::Value;

constexpr unsigned kStrict = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;

/// Keeps the keys of the outermost object.
struct KeyHandler : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, KeyHandler> {
  bool StartObject() {
    ++depth;
    return true;
  }
  bool EndObject(rapidjson::SizeType) {
    --depth;
    return true;
  }
  bool StartArray() {
    ++depth;
    return depth > 1;
  }
  bool EndArray(rapidjson::SizeType) {
    --depth;
    return true;
  }
  bool Key(const char* key, rapidjson::SizeType length, bool) {
    if (depth == 1) {
      keys.append(keys.empty() ? "" : ",").append(key, length);
    }
    return true;
  }
  bool Default() { return depth > 0; }

  int depth = 0;
  std::string keys;
};

/// Writes down all that a parser meets, numbers letter for letter.
struct EventHandler : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, EventHandler> {
  bool Add(char kind, std::string_view text) {
    events.append(1, kind).append(std::to_string(text.size())).append(1, ' ').append(text);
    return true;
  }
  bool Null() { return Add('n', ""); }
  bool Bool(bool truth) { return Add('b', truth ? "1" : "0"); }
  bool RawNumber(const char* digits, rapidjson::SizeType length, bool) {
    return Add('N', {digits, length});
  }
  bool String(const char* text, rapidjson::SizeType length, bool) {
    return Add('S', {text, length});
  }
  bool Key(const char* key, rapidjson::SizeType length, bool) { return Add('K', {key, length}); }
  bool StartObject() { return Add('{', ""); }
  bool EndObject(rapidjson::SizeType) { return Add('}', ""); }
  bool StartArray() { return Add('[', ""); }
  bool EndArray(rapidjson::SizeType) { return Add(']', ""); }

  std::string events;
};

template <typename Handler>
bool RapidReads(std::string_view text, Handler& handler) {
  rapidjson::MemoryStream stream(text.data(), text.size());
  rapidjson::Reader reader;
  return !reader.Parse<kStrict | rapidjson::kParseNumbersAsStringsFlag>(stream, handler).IsError();
}

std::string Written(const rapidjson::Value& value) {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  value.Accept(writer);
  return buffer.GetString();
}

bool Parse(rapidjson::Document& document, std::string_view text) {
  document.Parse<kStrict | rapidjson::kParseFullPrecisionFlag>(text.data(), text.size());
  return !document.HasParseError();
}

std::string RapidObjectDifference(const rapidjson::Value& actual, const Object& expected);

/// Whether `line` ends with the foreign JSON that its last member holds. Numbers count by their
/// letters: the parser's own conversion of "0E-186" depends on what was in memory before.
bool EndsLike(std::string_view line, const Object& expected) {
  if (expected.back().value.kind != Value::Kind::kJson) {
    return true;
  }
  EventHandler whole;
  EventHandler end;
  if (!RapidReads(line, whole) || !RapidReads(expected.back().value.text, end)) {
    return false;
  }
  end.EndObject(0);
  const std::size_t size = end.events.size();
  return whole.events.size() > size &&
         whole.events.compare(whole.events.size() - size, size, end.events) == 0;
}

/// Whether a number is the one that was read. As an integer, zero has lost its sign.
bool Same(double read, bool readAsInteger, double expected) {
  return read == expected && (readAsInteger || std::signbit(read) == std::signbit(expected));
}

bool RapidEquals(const rapidjson::Value& actual, const Value& expected) {
  switch (expected.kind) {
    case Value::Kind::kText:
      return actual.IsString() && std::string(actual.GetString(), actual.GetStringLength()) ==
                                      Oracle::Repaired(expected.text);
    case Value::Kind::kInteger:
      return (actual.IsInt64() || actual.IsUint64()) && Written(actual) == expected.text;
    case Value::Kind::kReal:
      return std::isfinite(expected.real)
                 ? actual.IsNumber() && Same(actual.GetDouble(), !actual.IsDouble(), expected.real)
                 : actual.IsNull();
    case Value::Kind::kBool:
      return actual.IsBool() && actual.GetBool() == expected.truth;
    case Value::Kind::kObject:
      return RapidObjectDifference(actual, expected.members).empty();
    case Value::Kind::kJson:
      break;
  }
  return true;  // See EndsLike.
}

std::string RapidObjectDifference(const rapidjson::Value& actual, const Object& expected) {
  if (!actual.IsObject() || actual.MemberCount() != expected.size()) {
    return "the number of members";
  }
  auto member = actual.MemberBegin();
  for (const auto& [key, value] : expected) {
    const std::string found(member->name.GetString(), member->name.GetStringLength());
    if (found != Oracle::Repaired(key) || !RapidEquals(member->value, value)) {
      return key;
    }
    ++member;
  }
  return "";
}

std::string NlohmannObjectDifference(const Nlohmann& actual, const Object& expected);

bool NlohmannEquals(const Nlohmann& actual, const Value& expected) {
  switch (expected.kind) {
    case Value::Kind::kText:
      return actual.is_string() && actual.get<std::string>() == Oracle::Repaired(expected.text);
    case Value::Kind::kInteger:
      return actual.is_number_integer() && actual.dump() == expected.text;
    case Value::Kind::kReal:
      return std::isfinite(expected.real)
                 ? actual.is_number() &&
                       Same(actual.get<double>(), actual.is_number_integer(), expected.real)
                 : actual.is_null();
    case Value::Kind::kBool:
      return actual.is_boolean() && actual.get<bool>() == expected.truth;
    case Value::Kind::kObject:
      return NlohmannObjectDifference(actual, expected.members).empty();
    case Value::Kind::kJson:
      break;
  }
  return actual == Nlohmann::parse(expected.text);
}

std::string NlohmannObjectDifference(const Nlohmann& actual, const Object& expected) {
  if (!actual.is_object() || actual.size() != expected.size()) {
    return "the number of members";
  }
  auto member = actual.begin();
  for (const auto& [key, value] : expected) {
    if (member.key() != Oracle::Repaired(key) || !NlohmannEquals(member.value(), value)) {
      return key;
    }
    ++member;
  }
  return "";
}

/// Where the string that begins at `begin` has its last quotation mark; the text's end if it has
/// none.
std::size_t EndOfString(std::string_view text, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < text.size() && text[end] != '"') {
    end += text[end] == '\\' ? 2 : 1;
  }
  return end;
}

}  // namespace

std::optional<std::string> Keys(std::string_view text) {
  KeyHandler handler;
  return RapidReads(text, handler) ? std::optional(handler.keys) : std::nullopt;
}

bool MayHaveLargeNumber(std::string_view text) {
  constexpr int kManyDigits = 250;
  constexpr int kManyExponentDigits = 2;
  int digits = 0;
  int most = kManyDigits;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (character == '"') {
      i = EndOfString(text, i);
    }
    if (character >= '0' && character <= '9') {
      ++digits;
    } else if (character != '+' && character != '-') {
      digits = 0;
      most = character == 'e' || character == 'E' ? kManyExponentDigits : kManyDigits;
    }
    if (digits > most) {
      return true;
    }
  }
  return false;
}

bool RapidAccepts(std::string_view text) {
  rapidjson::BaseReaderHandler<> handler;
  return RapidReads(text, handler);
}

bool NlohmannAccepts(std::string_view text) { return Nlohmann::accept(text); }

std::string RapidDifference(std::string_view line, const Object& expected) {
  rapidjson::Document document;
  if (!Parse(document, line)) {
    return "no valid JSON";
  }
  return EndsLike(line, expected) ? RapidObjectDifference(document, expected) : "foreign JSON";
}

std::string NlohmannDifference(std::string_view line, const Object& expected) {
  const Nlohmann document = Nlohmann::parse(line, nullptr, false);
  return document.is_discarded() ? "no valid JSON" : NlohmannObjectDifference(document, expected);
}

}  // namespace IndependentJson
