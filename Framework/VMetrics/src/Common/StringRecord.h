/// Packing of records with an event ID.
#ifndef VMETRICS_COMMON_STRINGRECORD_H_
#define VMETRICS_COMMON_STRINGRECORD_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "VMetrics.h"

namespace vmetrics {

/// A VMetricsDataString in the making, all zero at first. Each setter returns false when the
/// platform's bounds-checked copy refuses, as it does what is too long for its field.
class StringRecord {
 public:
  /// Makes room for a value of `dataLength` bytes, or for none if it is longer than the entry of
  /// the renderer lets through: nobody would read it.
  explicit StringRecord(std::size_t dataLength);

  void SetType(VMetricsHeaderIndexType type);
  bool SetEventId(const std::string& eventId);
  bool SetServiceName(const std::string& serviceName);
  /// Stores the length and copies as many bytes of `data`, if there is room for them.
  bool SetData(const char* data, std::uint32_t length);

  const VMetricsDataString* Get() const;

 private:
  VMetricsDataString* Record();

  std::vector<char> bytes_;
};

}  // namespace vmetrics

#endif  // VMETRICS_COMMON_STRINGRECORD_H_
