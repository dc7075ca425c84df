#include "JsonArray.h"

#include "Terminal.h"
#include "Text.h"

namespace vmetrics {

void JsonArray::Add(const VJson::Value& element) {
  Write(isEmpty_ ? "[\n" : ",\n");
  // Only characters of strings are left to be escaped here, and JSON knows the escapes.
  Write(Printable(element.ToString()));
  isEmpty_ = false;
}

void JsonArray::Finish() const { Write(isEmpty_ ? "[]\n" : "\n]\n"); }

}  // namespace vmetrics
