/// JSON objects, on nlohmann/json: see src/VJson.cpp.
#ifndef EXAMPLE_VJSON_H_
#define EXAMPLE_VJSON_H_

#include <string>

namespace VJson {

/// One JSON value; a new one is the empty object.
class Value {
 public:
  // Every type that the framework passes has its own function. Without the one for const char* a
  // text would become a bool, and nobody would say so.
  void AddJsonValue(const std::string& key, const std::string& value);
  void AddJsonValue(const std::string& key, const char* value);
  void AddJsonValue(const std::string& key, int value);
  void AddJsonValue(const std::string& key, unsigned int value);
  void AddJsonValue(const std::string& key, long value);
  void AddJsonValue(const std::string& key, unsigned long value);
  void AddJsonValue(const std::string& key, double value);
  void AddJsonValue(const std::string& key, bool value);

  /// Nests another value.
  void Add(const std::string& key, const Value& value);

  /// Becomes what `text` holds; false, and nothing happens, if that is not JSON.
  bool Parse(const std::string& text);

  /// One line of JSON, members in the order in which they came.
  std::string ToString() const;

 private:
  /// Adds a member whose value is JSON already.
  void AddText(const std::string& key, const std::string& value);

  std::string text_ = "{}";
};

}  // namespace VJson

#endif  // EXAMPLE_VJSON_H_
