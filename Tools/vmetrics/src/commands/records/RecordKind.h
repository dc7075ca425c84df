/// The three packed forms in which records travel; docs/record-layouts.md has their fields.
#ifndef VMETRICS_TOOL_RECORDKIND_H_
#define VMETRICS_TOOL_RECORDKIND_H_

#include <cstddef>
#include <cstdint>
#include <string>

namespace vmetrics {

enum class RecordKind {
  kNumeric,  ///< VMetricsData.
  kString,   ///< VMetricsDataString.
  kMessage   ///< VMessage that carries a VMetricsData.
};

/// The longest value that is rendered.
constexpr std::uint32_t kLongestRenderedValue = 0xFFFF;

/// The longest value that the library's checked entries take; an announced length beyond it is
/// taken for no length at all.
constexpr std::uint32_t kLongestValue = 0x10000;

/// Bytes in front of the value.
std::size_t HeaderSize(RecordKind kind);

/// The length of the value that a record announces; `record` holds its header at least.
std::uint32_t AnnouncedLength(RecordKind kind, const char* record);

/// The line that the library makes of a whole record; empty where it refuses it.
std::string Render(RecordKind kind, const char* record);

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_RECORDKIND_H_
