#include "JsonObjectCheck.h"

#include <simdjson.h>

#include <cstddef>
#include <string>

namespace vmetrics {

namespace {

using simdjson::ondemand::array;
using simdjson::ondemand::document;
using simdjson::ondemand::json_type;
using simdjson::ondemand::object;
using simdjson::ondemand::value;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Takes the digits from the front of `text`; false where there are none.
bool TakeDigits(std::string_view& text) {
  const std::size_t size = text.size();
  while (!text.empty() && IsDigit(text.front())) {
    text.remove_prefix(1);
  }
  return text.size() < size;
}

bool Take(std::string_view& text, std::string_view anyOf) {
  const bool found = !text.empty() && anyOf.find(text.front()) != std::string_view::npos;
  text.remove_prefix(found ? 1 : 0);
  return found;
}

/// By its letters, as the parser would refuse a number that fits into no type of C++.
bool IsNumber(std::string_view token) {
  token = token.substr(0, token.find_last_not_of(" \t\r\n") + 1);
  Take(token, "-");
  if (!Take(token, "0") && !TakeDigits(token)) {
    return false;
  }
  if (Take(token, ".") && !TakeDigits(token)) {
    return false;
  }
  if (Take(token, "eE")) {
    Take(token, "+-");
    if (!TakeDigits(token)) {
      return false;
    }
  }
  return token.empty();
}

bool IsValid(object object, int depth);
bool IsValid(array array, int depth);

/// The parser checks only what it is asked for, so each value is asked for.
bool IsValid(value value, int depth) {
  json_type type;
  if (value.type().get(type) != simdjson::SUCCESS) {
    return false;
  }
  switch (type) {
    case json_type::object: {
      object nested;
      return value.get_object().get(nested) == simdjson::SUCCESS && IsValid(nested, depth + 1);
    }
    case json_type::array: {
      array nested;
      return value.get_array().get(nested) == simdjson::SUCCESS && IsValid(nested, depth + 1);
    }
    case json_type::string:
      return value.get_string().error() == simdjson::SUCCESS;
    case json_type::number:
      return IsNumber(value.raw_json_token());
    case json_type::boolean:
      return value.get_bool().error() == simdjson::SUCCESS;
    case json_type::null: {
      bool isNull;
      return value.is_null().get(isNull) == simdjson::SUCCESS && isNull;
    }
  }
  return false;
}

bool IsValid(object object, int depth) {
  if (depth > JsonObjectCheck::kDeepest) {
    return false;
  }
  for (auto member : object) {
    value value;
    if (member.unescaped_key().error() != simdjson::SUCCESS ||
        member.value().get(value) != simdjson::SUCCESS || !IsValid(value, depth)) {
      return false;
    }
  }
  return true;
}

bool IsValid(array array, int depth) {
  if (depth > JsonObjectCheck::kDeepest) {
    return false;
  }
  for (auto element : array) {
    value value;
    if (element.get(value) != simdjson::SUCCESS || !IsValid(value, depth)) {
      return false;
    }
  }
  return true;
}

}  // namespace

struct JsonObjectCheck::Parser {
  simdjson::ondemand::parser parser;
  std::string text;  ///< With room behind it, into which the parser may read.
};

JsonObjectCheck::JsonObjectCheck() : parser_(std::make_unique<Parser>()) {}

JsonObjectCheck::~JsonObjectCheck() = default;

bool JsonObjectCheck::IsObject(std::string_view text) {
  std::string& padded = parser_->text;
  padded.assign(text).append(simdjson::SIMDJSON_PADDING, ' ');
  document document;
  object object;
  return parser_->parser.iterate(padded.data(), text.size(), padded.size()).get(document) ==
             simdjson::SUCCESS &&
         document.get_object().get(object) == simdjson::SUCCESS && IsValid(object, 1) &&
         document.current_location().error() == simdjson::OUT_OF_BOUNDS;
}

}  // namespace vmetrics
