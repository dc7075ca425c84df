/// JSON of known form on a terminal.
#ifndef VMETRICS_TOOL_JSONTEXT_H_
#define VMETRICS_TOOL_JSONTEXT_H_

#include <VJson.h>

#include <string>

namespace vmetrics {

/// The value as one line of JSON, without a line break, in which a terminal finds nothing to obey.
std::string JsonText(const VJson::Value& value);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_JSONTEXT_H_
