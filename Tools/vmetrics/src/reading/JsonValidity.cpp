#include "JsonValidity.h"

#include <cstddef>

#include "JsonBlanks.h"

namespace vmetrics {

using simdjson::ondemand::array;
using simdjson::ondemand::json_type;
using simdjson::ondemand::object;
using simdjson::ondemand::value;

namespace {

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

}  // namespace

bool IsNumber(std::string_view token) {
  token = WithoutTrailingBlanks(token);
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

namespace {

bool IsValidArray(array array, int depth);

}  // namespace

bool IsValid(value value, int depth) {
  json_type type;
  if (value.type().get(type) != simdjson::SUCCESS) {
    return false;
  }
  switch (type) {
    case json_type::object: {
      object nested;
      return value.get_object().get(nested) == simdjson::SUCCESS &&
             IsValidObject(nested, depth + 1);
    }
    case json_type::array: {
      array nested;
      return value.get_array().get(nested) == simdjson::SUCCESS && IsValidArray(nested, depth + 1);
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

bool IsValidObject(object object, int depth) {
  if (depth > kDeepestNesting) {
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

namespace {

bool IsValidArray(array array, int depth) {
  if (depth > kDeepestNesting) {
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

}  // namespace vmetrics
