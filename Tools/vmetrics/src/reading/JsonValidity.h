/// Whether JSON values that the parser has found are valid through and through.
#ifndef VMETRICS_TOOL_JSONVALIDITY_H_
#define VMETRICS_TOOL_JSONVALIDITY_H_

#include <simdjson.h>

#include <string_view>

namespace vmetrics {

/// Values nested deeper than this are refused; a metrics line has at most 130 levels.
constexpr int kDeepestNesting = 500;

/// Whether `token` is a JSON number: by its letters, as the parser would refuse one that fits into
/// no type of C++.
bool IsNumber(std::string_view token);

/// Whether the value is valid that is nested in `depth` others. The parser checks only what it is
/// asked for, so each value within is asked for.
bool IsValid(simdjson::ondemand::value value, int depth);
bool IsValidObject(simdjson::ondemand::object object, int depth);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_JSONVALIDITY_H_
