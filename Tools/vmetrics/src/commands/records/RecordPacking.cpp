#include "RecordPacking.h"

#include <VIpc.h>
#include <VMetrics.h>
#include <fmt/format.h>

#include <cstddef>

#include "Command.h"

namespace vmetrics {

namespace {

template <typename Header>
std::string Packed(const Header& header, const std::string& value) {
  return std::string(reinterpret_cast<const char*>(&header), sizeof header) + value;
}

/// Puts a text into a field of zeros; one that fills it has no terminator.
template <std::size_t width>
void Fill(char (&field)[width], const std::string& text, const char* what) {
  if (text.size() > width) {
    throw UsageError(fmt::format("{} has {} bytes; its field holds {}", what, text.size(), width));
  }
  text.copy(field, width);
}

}  // namespace

std::string PackedNumeric(const RecordHeader& header, const std::string& value) {
  VMetricsData record{};
  record.terminalId = header.terminalId;
  record.eventId = header.metricId;
  record.dataLength = static_cast<std::uint32_t>(value.size());
  return Packed(record, value);
}

std::string PackedMessage(const RecordHeader& header, const std::string& value) {
  VMessage message{};
  message.srcModuleId = static_cast<std::int32_t>(header.sourceModule);
  message.dstModuleId = static_cast<std::int32_t>(header.destinationModule);
  message.msgType = static_cast<std::int32_t>(header.messageType);
  return Packed(message, PackedNumeric(header, value));
}

std::string PackedString(const RecordHeader& header, const std::string& value) {
  VMetricsDataString record{};
  record.terminalId = header.terminalId;
  record.type = header.type;
  Fill(record.eventId, header.eventId, "the event ID");
  Fill(record.userName, header.userName, "--user");
  Fill(record.transactionId, header.transactionId, "--transaction");
  Fill(record.businessType, header.businessType, "--business-type");
  Fill(record.serviceName, header.serviceName, "--service");
  record.dataLength = static_cast<std::uint32_t>(value.size());
  return Packed(record, value);
}

}  // namespace vmetrics
