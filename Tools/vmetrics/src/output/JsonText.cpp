#include "JsonText.h"

#include "Text.h"

namespace vmetrics {

std::string JsonText(const VJson::Value& value) {
  // Only characters of strings are left to be escaped here, and JSON knows the escapes.
  return Printable(value.ToString());
}

}  // namespace vmetrics
