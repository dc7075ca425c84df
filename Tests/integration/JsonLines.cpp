#include "JsonLines.h"

#include <gtest/gtest.h>

#include <boost/json/src.hpp>

#include "ProbeProcess.h"

std::vector<boost::json::object> ParseJsonLines(const std::string& text) {
  EXPECT_TRUE(text.empty() || text.back() == '\n') << "a line without an end";
  std::vector<boost::json::object> objects;
  for (const std::string& line : LinesOf(text)) {
    boost::json::error_code error;
    const boost::json::value value = boost::json::parse(line, error);
    if (error || !value.is_object()) {
      ADD_FAILURE() << "not a JSON object: " << line;
    } else {
      objects.push_back(value.get_object());
    }
  }
  return objects;
}

std::vector<std::string> KeysOf(const boost::json::object& object) {
  std::vector<std::string> keys;
  for (const auto& member : object) {
    keys.emplace_back(member.key());
  }
  return keys;
}

std::string TextOf(const boost::json::object& object, const char* key) {
  const boost::json::value* const value = object.if_contains(key);
  if (value == nullptr || !value->is_string()) {
    ADD_FAILURE() << "no text \"" << key << "\" in " << boost::json::serialize(object);
    return "";
  }
  return value->as_string().c_str();
}
