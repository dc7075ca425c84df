/// The records, payloads and hand-written pieces that the benchmarks have in common.
#ifndef BENCHMARKS_RECORDS_H_
#define BENCHMARKS_RECORDS_H_

#include <charconv>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "VDateTime.h"
#include "VMetrics.h"

/// Frames a second of terminal 7: the record that the whole project uses as its example.
inline const VMetricsData* NumericRecord() {
  static const unsigned char bytes[] = {7, 0, 0, 0, 0x01, 0, 0x0B, 0x12, 4, 0, 0, 0, 60, 0, 0, 0};
  return reinterpret_cast<const VMetricsData*>(bytes);
}

/// A JSON payload as foreign code writes it: blanks, a line break now and then, many small numbers,
/// short texts, an escape.
inline std::string Payload(std::size_t size) {
  const std::string member =
      "{\"name\": \"first \\\"packet\\\"\", \"delays\": [12, 7, 16, 33, 250, 3.25, -1], "
      "\"state\": \"ok\", \"loss\": 0.5},\n ";
  std::string text = "[";
  while (text.size() + member.size() + 8 < size) {
    text += member;
  }
  text += '"';
  text.append(size - text.size() - 2, 'x');
  return text + "\"]";
}

/// A record of the event "nox_user_connect" that carries `payload`.
inline std::vector<char> StringRecordBytes(const std::string& payload) {
  std::vector<char> bytes(sizeof(VMetricsDataString) + payload.size());
  auto* const record = reinterpret_cast<VMetricsDataString*>(bytes.data());
  record->terminalId = 7;
  record->type = VMETRICS_HEADER_INDEX_CONNECTION;
  std::strcpy(record->eventId, "nox_user_connect");
  std::strcpy(record->userName, "someone");
  std::strcpy(record->transactionId, "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4");
  std::strcpy(record->businessType, "desktop");
  std::strcpy(record->serviceName, "zelviewer");
  record->dataLength = static_cast<std::uint32_t>(payload.size());
  std::memcpy(record->data, payload.data(), payload.size());
  return bytes;
}

/// Appends a number without a locale, as hand-written code would.
template <typename Number>
void AppendNumber(std::string& out, Number number) {
  char digits[24];
  out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

/// Appends a text as a JSON string, escaping what JSON asks to be escaped and no more.
inline void AppendString(std::string& out, std::string_view text) {
  out.push_back('"');
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x20 || byte == 0x7F) {
      const char escape[] = {
          '\\', 'u', '0', '0', "0123456789abcdef"[byte >> 4], "0123456789abcdef"[byte & 15]};
      out.append(escape, sizeof escape);
    } else {
      if (character == '"' || character == '\\') {
        out.push_back('\\');
      }
      out.push_back(character);
    }
  }
  out.push_back('"');
}

#endif  // BENCHMARKS_RECORDS_H_
