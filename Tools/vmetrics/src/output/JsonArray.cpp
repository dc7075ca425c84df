#include "JsonArray.h"

#include "JsonText.h"
#include "Terminal.h"

namespace vmetrics {

void JsonArray::Add(const VJson::Value& element) {
  Write(isEmpty_ ? "[\n" : ",\n");
  Write(JsonText(element));
  isEmpty_ = false;
}

void JsonArray::Finish() const { Write(isEmpty_ ? "[]\n" : "\n]\n"); }

}  // namespace vmetrics
