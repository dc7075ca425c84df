// Rendering of whole records, and the checked entries in front of it.

#include <algorithm>
#include <cstdint>
#include <string>

#include "BoundsChecked.h"
#include "Common/Log.h"
#include "VDateTime.h"
#include "VIpc.h"
#include "VJson.h"
#include "VMetrics.h"
#include "VMetrics/ValueRendering.h"

namespace vmetrics {
namespace {

/// The longest value that is rendered. The entries in front let one byte more pass, on purpose: a
/// value of exactly 65,536 bytes is refused without a log line.
constexpr std::uint32_t kLongestRenderedValue = 0xFFFF;
constexpr std::uint32_t kLongestAnnouncedValue = 0x10000;

/// A private copy of a record's value, with a NUL behind it for the text types, and padded with
/// zeros so that a value shorter than its type can be read like any other.
class ValueCopy {
 public:
  ValueCopy(const char* data, std::uint32_t length)
      : bytes_(std::max<std::size_t>(length, kWidestValue), '\0'),
        complete_(memcpy_s(&bytes_[0], length, data, length) == 0) {}

  bool IsComplete() const { return complete_; }
  std::string& Bytes() { return bytes_; }

 private:
  std::string bytes_;
  bool complete_;
};

/// A header number as records show it: the decimal text of its bits taken as signed.
std::string SignedText(std::uint32_t number) {
  return std::to_string(static_cast<std::int32_t>(number));
}

/// A text field of a record, up to the first NUL. It is taken from the record's first byte on, not
/// from the field: a text that fills its field runs on into the next one. In a record whose value
/// length is within limits the byte before the value is zero, so no text leaves the header.
const char* TextField(const VMetricsDataString* record, std::size_t offset) {
  return reinterpret_cast<const char*>(record) + offset;
}

/// Nests the rendered value under "args"; adds nothing where there is none.
template <typename Map>
void AddArguments(const Map& catalogue, const typename Map::key_type& key, ValueCopy& value,
                  VJson::Value& root) {
  const auto found = catalogue.find(key);
  VJson::Value arguments;
  if (found != catalogue.end() && RenderValue(found->second, value.Bytes(), arguments)) {
    root.Add("args", arguments);
  }
}

}  // namespace
}  // namespace vmetrics

std::string VMetrics::GetBaseMetricsString(const VMetricsData* record) {
  using namespace vmetrics;
  if (record == nullptr || record->dataLength > kLongestRenderedValue) {
    return {};
  }
  ValueCopy value(record->data, record->dataLength);
  if (!value.IsComplete()) {
    VMETRICS_LOG(kVMetricsSource, kLogError, "memcpy error");
    return {};
  }
  VJson::Value root;
  root.AddJsonValue("eventId", SignedText(record->eventId));
  root.AddJsonValue("timestamp", VDateTime::GetCurrentTick());
  root.AddJsonValue("moduleId", record->eventId >> 16);
  root.AddJsonValue("terminalId", SignedText(record->terminalId));
  AddArguments(GetMetricsMap(), static_cast<int>(record->eventId), value, root);
  return root.ToString();
}

std::string VMetrics::GetStringBaseMetricsString(const VMetricsDataString* record) {
  using namespace vmetrics;
  if (record == nullptr || record->dataLength > kLongestRenderedValue) {
    return {};
  }
  ValueCopy value(record->data, record->dataLength);
  if (!value.IsComplete()) {
    VMETRICS_LOG(kVMetricsSource, kLogError, "memcpy error");
    return {};
  }
  const std::string eventId = TextField(record, offsetof(VMetricsDataString, eventId));
  VJson::Value root;
  root.AddJsonValue("eventId", eventId);
  root.AddJsonValue("timestamp", VDateTime::GetCurrentTick());
  root.AddJsonValue("terminalId", SignedText(record->terminalId));
  root.AddJsonValue("type", SignedText(record->type));
  root.AddJsonValue("transactionId",
                    TextField(record, offsetof(VMetricsDataString, transactionId)));
  root.AddJsonValue("businessType", TextField(record, offsetof(VMetricsDataString, businessType)));
  root.AddJsonValue("serviceName", TextField(record, offsetof(VMetricsDataString, serviceName)));
  root.AddJsonValue("userName", TextField(record, offsetof(VMetricsDataString, userName)));
  AddArguments(GetMetricsStringMap(), eventId, value, root);
  return root.ToString();
}

std::string VMetrics::FmtMetricsMsgToString(const VMessage* message) {
  using namespace vmetrics;
  if (message == nullptr) {
    return {};
  }
  const auto* record = reinterpret_cast<const VMetricsData*>(message->body);
  if (record->dataLength > kLongestAnnouncedValue) {
    VMETRICS_LOG(kVMetricsSource, kLogError, "invalid data length=%d",
                 static_cast<int>(record->dataLength));
    return {};
  }
  return GetBaseMetricsString(record);
}

std::string VMetrics::StringFmtMetricsMsgToString(const VMetricsDataString* record) {
  using namespace vmetrics;
  if (record == nullptr) {
    return {};
  }
  if (record->dataLength == 0 || record->dataLength > kLongestAnnouncedValue) {
    VMETRICS_LOG(kVMetricsSource, kLogError, "invalid data length=%d",
                 static_cast<int>(record->dataLength));
    return {};
  }
  return GetStringBaseMetricsString(record);
}
