/// Packing of records from what a user says of them.
#ifndef VMETRICS_TOOL_RECORDPACKING_H_
#define VMETRICS_TOOL_RECORDPACKING_H_

#include <cstdint>
#include <string>

namespace vmetrics {

/// The fields of a record but for its value.
struct RecordHeader {
  std::uint32_t terminalId = 0;
  std::uint32_t metricId = 0;

  // Of a record with an event ID.
  std::uint32_t type = 0;
  std::string eventId;
  std::string userName;
  std::string transactionId;
  std::string businessType;
  std::string serviceName;

  // Of a message.
  std::uint32_t sourceModule = 0;
  std::uint32_t destinationModule = 0;
  std::uint32_t messageType = 0;
};

// The bytes of a record. `value` has no more than kLongestRenderedValue of them.
std::string PackedNumeric(const RecordHeader& header, const std::string& value);
std::string PackedMessage(const RecordHeader& header, const std::string& value);

/// Throws UsageError where a text is longer than its field.
std::string PackedString(const RecordHeader& header, const std::string& value);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDPACKING_H_
