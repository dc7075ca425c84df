/// How a fuzzer finds fault: it says why and ends the process, which keeps the input.
#ifndef FUZZ_VERDICT_H_
#define FUZZ_VERDICT_H_

#include <optional>
#include <string_view>

#include "RecordModel.h"

void Require(bool condition, const char* what);
void RequireEqual(std::string_view actual, std::string_view expected, const char* what);

/// A line is the oracle's; it is one line and an object for a JSON parser that is none of ours, and
/// has the keys that are wanted: "eventId,timestamp". A text that is empty and should be passes. A
/// number that the parser has no room for is left to the oracle.
void RequireLine(std::string_view line, std::string_view expected, std::string_view keys);

/// The same for a record, which has `keys` and maybe "args".
void RequireRecord(std::string_view line, const std::optional<Oracle::Object>& expected,
                   std::string_view keys);

constexpr std::string_view kNumericKeys = "eventId,timestamp,moduleId,terminalId";
constexpr std::string_view kStringKeys =
    "eventId,timestamp,terminalId,type,transactionId,businessType,serviceName,userName";

#endif  // FUZZ_VERDICT_H_
