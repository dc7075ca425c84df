/// Packed records and messages, built byte by byte and not through the structs that describe them.
#ifndef RECORDS_H_
#define RECORDS_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

/// A number of a record's header, least significant byte first.
inline std::string Word(std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>(number >> shift & 0xFF);
  }
  return bytes;
}

/// A value of a fixed width as it stands in memory.
template <typename Value>
std::string ValueBytes(Value value) {
  std::string bytes(sizeof value, '\0');
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}

/// A record with a numeric ID that announces `dataLength` value bytes, whatever it carries.
inline std::string NumericRecord(std::uint32_t terminalId, std::uint32_t eventId,
                                 std::uint32_t dataLength, const std::string& value) {
  return Word(terminalId) + Word(eventId) + Word(dataLength) + value;
}

/// A record with a numeric ID that announces what it carries.
inline std::string NumericRecord(std::uint32_t terminalId, std::uint32_t eventId,
                                 const std::string& value) {
  return NumericRecord(terminalId, eventId, static_cast<std::uint32_t>(value.size()), value);
}

/// An IPC message; the words that metrics do not read hold what would show if they were.
inline std::string Message(int srcModuleId, int dstModuleId, int msgType,
                           const std::string& body = {}) {
  return Word(0xDEADBEEF) + ValueBytes(srcModuleId) + Word(0xDEADBEEF) + ValueBytes(dstModuleId) +
         ValueBytes(msgType) + Word(0xDEADBEEF) + body;
}

/// A record with an event ID.
struct TextRecord {
  std::uint32_t terminalId = 0;
  std::uint32_t type = 0;
  std::string eventId;
  std::string userName;
  std::string transactionId;
  std::string businessType;
  std::string serviceName;
  std::optional<std::uint32_t> dataLength;  ///< What it announces, if not what it carries.
  std::string value;

  std::string Bytes() const {
    return Word(terminalId) + Word(type) + Field(eventId, 128) + Field(userName, 128) +
           Field(transactionId, 64) + Field(businessType, 32) + Field(serviceName, 32) +
           Word(dataLength.value_or(static_cast<std::uint32_t>(value.size()))) + value;
  }

 private:
  static std::string Field(std::string text, std::size_t width) {
    text.resize(width);
    return text;
  }
};

#endif  // RECORDS_H_
