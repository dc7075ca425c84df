/// Whether a text is a JSON object, whatever its numbers.
#ifndef VMETRICS_TOOL_JSONOBJECTCHECK_H_
#define VMETRICS_TOOL_JSONOBJECTCHECK_H_

#include <memory>
#include <string_view>

namespace vmetrics {

/// Keeps the memory that a check takes for the next one: up to about ten times the longest text.
class JsonObjectCheck {
 public:
  JsonObjectCheck();
  ~JsonObjectCheck();
  JsonObjectCheck(const JsonObjectCheck&) = delete;
  JsonObjectCheck& operator=(const JsonObjectCheck&) = delete;

  /// Whether `text` is one JSON object (RFC 8259) and nothing else, in time linear in its length.
  /// A number may have any size and any number of digits: the library hands on those of a payload
  /// as they were written.
  bool IsObject(std::string_view text);

 private:
  struct Parser;

  std::unique_ptr<Parser> parser_;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_JSONOBJECTCHECK_H_
