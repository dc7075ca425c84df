/// JSON as two parsers see it that are none of ours.
#ifndef ORACLE_INDEPENDENTJSON_H_
#define ORACLE_INDEPENDENTJSON_H_

#include <optional>
#include <string>
#include <string_view>

#include "RecordModel.h"

namespace IndependentJson {

/// The keys of the object that `text` is, in order, with commas between; none if it is no object or
/// no valid JSON. RapidJSON.
std::optional<std::string> Keys(std::string_view text);

/// Whether there may be a number in the text that a double cannot hold: JSON has no limit there,
/// but both parsers do.
bool MayHaveLargeNumber(std::string_view text);

/// Whether each of the two accepts the text.
bool RapidAccepts(std::string_view text);
bool NlohmannAccepts(std::string_view text);

/// What differs between the object that each of the two reads from `line` and `expected`, field by
/// field; empty if nothing does.
std::string RapidDifference(std::string_view line, const Oracle::Object& expected);
std::string NlohmannDifference(std::string_view line, const Oracle::Object& expected);

}  // namespace IndependentJson

#endif  // ORACLE_INDEPENDENTJSON_H_
