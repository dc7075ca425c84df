/// What counts as JSON in a value that comes from elsewhere.
#ifndef ORACLE_STRICTJSON_H_
#define ORACLE_STRICTJSON_H_

#include <optional>
#include <string>
#include <string_view>

namespace Oracle {

/// The text without the white space between its values; none if it is not one JSON value as RFC
/// 8259 has it, with the limits of the platform: well-formed UTF-8, no byte order mark, no lone
/// surrogate escape, at most 128 levels.
std::optional<std::string> Compacted(std::string_view text);

}  // namespace Oracle

#endif  // ORACLE_STRICTJSON_H_
