// A value is its own text, complete at any time; nlohmann/json writes its strings and tells what is
// JSON of what comes from elsewhere.
//
// Why not a tree of nlohmann::ordered_json: destroying one allocates, so that a process that has
// run out of memory ends there, and writing one calls itself for each level of nesting, of which a
// hostile text may have thousands. A tree would also keep one of two members with the same name,
// and turn 41.50 into 41.5.

#include "VJson.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

constexpr int kDeepestNesting = 128;

/// `text` as a JSON string. Bytes that are no UTF-8 become U+FFFD: otherwise dump would throw.
std::string Quoted(const std::string& text) {
  std::string quoted = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
  // The control character that JSON allows, and that readers of our lines do not expect.
  for (std::size_t at = quoted.find('\x7F'); at != std::string::npos;
       at = quoted.find('\x7F', at)) {
    quoted.replace(at, 1, "\\u007f");
  }
  return quoted;
}

/// The shortest text that reads back as the same number, in any locale; JSON knows no NaN and no
/// infinities.
template <typename Number>
std::string NumberText(Number value) {
  if (!std::isfinite(static_cast<double>(value))) {
    return "null";
  }
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
}

/// Lets pass what is JSON, and not nested deeper than its readers may follow. Each function returns
/// whether to go on.
class Validator : public json::json_sax_t {
 public:
  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(json::number_integer_t) override { return true; }
  bool number_unsigned(json::number_unsigned_t) override { return true; }
  bool number_float(json::number_float_t, const std::string&) override { return true; }
  bool string(std::string&) override { return true; }
  bool binary(json::binary_t&) override { return true; }
  bool key(std::string&) override { return true; }
  bool start_object(std::size_t) override { return ++depth_ <= kDeepestNesting; }
  bool start_array(std::size_t) override { return ++depth_ <= kDeepestNesting; }
  bool end_object() override { return --depth_ >= 0; }
  bool end_array() override { return --depth_ >= 0; }
  bool parse_error(std::size_t, const std::string&, const json::exception&) override {
    return false;
  }

 private:
  int depth_ = 0;
};

bool IsJson(const std::string& text) {
  // The parser takes a NUL for the end, and skips a byte order mark.
  if (text.find('\0') != std::string::npos || text.compare(0, 3, "\xEF\xBB\xBF") == 0) {
    return false;
  }
  Validator validator;
  return json::sax_parse(text, &validator);
}

/// A JSON text on one line, its strings and numbers letter for letter.
std::string WithoutWhiteSpace(const std::string& text) {
  std::string compact;
  bool inString = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (inString && text[at] == '\\') {
      compact += text[at++];  // What follows ends no string.
    } else if (text[at] == '"') {
      inString = !inString;
    }
    const bool blank = text[at] == ' ' || text[at] == '\t' || text[at] == '\r' || text[at] == '\n';
    if (inString || !blank) {
      compact += text[at];
    }
  }
  return compact;
}

}  // namespace

namespace VJson {

void Value::AddText(const std::string& key, const std::string& value) {
  if (text_[0] != '{') {
    return;  // What was parsed need not be an object.
  }
  const char* const comma = text_.size() > 2 ? "," : "";
  // Made first: if memory runs out the value is as it was.
  std::string longer = text_.substr(0, text_.size() - 1) + comma + Quoted(key) + ":" + value + "}";
  text_.swap(longer);
}

void Value::AddJsonValue(const std::string& key, const std::string& value) {
  AddText(key, Quoted(value));
}

void Value::AddJsonValue(const std::string& key, const char* value) {
  AddText(key, Quoted(value == nullptr ? "" : value));
}

void Value::AddJsonValue(const std::string& key, int value) { AddText(key, NumberText(value)); }

void Value::AddJsonValue(const std::string& key, unsigned int value) {
  AddText(key, NumberText(value));
}

void Value::AddJsonValue(const std::string& key, long value) { AddText(key, NumberText(value)); }

void Value::AddJsonValue(const std::string& key, unsigned long value) {
  AddText(key, NumberText(value));
}

void Value::AddJsonValue(const std::string& key, double value) { AddText(key, NumberText(value)); }

void Value::AddJsonValue(const std::string& key, bool value) {
  AddText(key, value ? "true" : "false");
}

void Value::Add(const std::string& key, const Value& value) { AddText(key, value.text_); }

bool Value::Parse(const std::string& text) {
  if (!IsJson(text)) {
    return false;
  }
  text_ = WithoutWhiteSpace(text);
  return true;
}

std::string Value::ToString() const { return text_; }

}  // namespace VJson
