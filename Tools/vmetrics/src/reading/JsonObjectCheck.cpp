#include "JsonObjectCheck.h"

#include <simdjson.h>

#include <string>

#include "JsonValidity.h"

namespace vmetrics {

struct JsonObjectCheck::Parser {
  simdjson::ondemand::parser parser;
  std::string text;  ///< With room behind it, into which the parser may read.
};

JsonObjectCheck::JsonObjectCheck() : parser_(std::make_unique<Parser>()) {}

JsonObjectCheck::~JsonObjectCheck() = default;

bool JsonObjectCheck::IsObject(std::string_view text) {
  std::string& padded = parser_->text;
  padded.assign(text).append(simdjson::SIMDJSON_PADDING, ' ');
  simdjson::ondemand::document document;
  simdjson::ondemand::object object;
  return parser_->parser.iterate(padded.data(), text.size(), padded.size()).get(document) ==
             simdjson::SUCCESS &&
         document.get_object().get(object) == simdjson::SUCCESS && IsValidObject(object, 1) &&
         document.current_location().error() == simdjson::OUT_OF_BOUNDS;
}

}  // namespace vmetrics
