/// jsoncpp as its users call it: texts on one line, read and written.
#ifndef BENCHMARKS_JSONCPPTEXT_H_
#define BENCHMARKS_JSONCPPTEXT_H_

#include <json/json.h>

#include <memory>
#include <string>

/// Reads a text; false when it is not JSON.
inline bool ReadJsonCpp(const std::string& text, Json::Value& value) {
  static const Json::CharReaderBuilder builder;
  const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  return reader->parse(text.data(), text.data() + text.size(), &value, nullptr);
}

inline std::string WriteJsonCpp(const Json::Value& value) {
  static const Json::StreamWriterBuilder builder = [] {
    Json::StreamWriterBuilder compact;
    compact["indentation"] = "";
    return compact;
  }();
  return Json::writeString(builder, value);
}

/// The text as jsoncpp would write it, which sorts members: for a comparison of values.
inline std::string AsJsonCppWrites(const std::string& text) {
  Json::Value value;
  return ReadJsonCpp(text, value) ? WriteJsonCpp(value) : "";
}

#endif  // BENCHMARKS_JSONCPPTEXT_H_
