#include "Common/StringRecord.h"

#include "BoundsChecked.h"

namespace vmetrics {

namespace {

constexpr std::size_t kLongestPackedData = 65536;

bool CopyText(char* field, std::size_t fieldSize, const std::string& text) {
  return memcpy_s(field, fieldSize, text.data(), text.size()) == 0;
}

}  // namespace

StringRecord::StringRecord(std::size_t dataLength)
    : bytes_(sizeof(VMetricsDataString) + (dataLength <= kLongestPackedData ? dataLength : 0)) {}

void StringRecord::SetType(VMetricsHeaderIndexType type) {
  Record()->type = static_cast<std::uint32_t>(type);
}

bool StringRecord::SetEventId(const std::string& eventId) {
  return CopyText(Record()->eventId, sizeof Record()->eventId, eventId);
}

bool StringRecord::SetServiceName(const std::string& serviceName) {
  return CopyText(Record()->serviceName, sizeof Record()->serviceName, serviceName);
}

bool StringRecord::SetData(const char* data, std::uint32_t length) {
  Record()->dataLength = length;
  if (length > kLongestPackedData) {
    return data != nullptr;
  }
  return memcpy_s(Record()->data, length, data, length) == 0;
}

const VMetricsDataString* StringRecord::Get() const {
  return reinterpret_cast<const VMetricsDataString*>(bytes_.data());
}

VMetricsDataString* StringRecord::Record() {
  return reinterpret_cast<VMetricsDataString*>(bytes_.data());
}

}  // namespace vmetrics
