#include "RecordFields.h"

#include <VIpc.h>
#include <VMetrics.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

#include "MetricId.h"
#include "MetricLookup.h"
#include "RecordMetric.h"
#include "Text.h"
#include "ValueFields.h"

namespace vmetrics {

namespace {

/// Says what a field that is whole holds.
using Describe = void (*)(RecordKind kind, std::string_view record, RecordField& field);

struct FieldLayout {
  std::string_view name;
  std::size_t width;
  Describe describe;
};

std::int32_t Signed(std::uint32_t number) { return static_cast<std::int32_t>(number); }

void DescribeUnread(RecordKind, std::string_view, RecordField& field) {
  field.meaning.emplace_back("not read");
}

void DescribeSigned(RecordKind, std::string_view record, RecordField& field) {
  field.meaning.push_back(fmt::format("{}", Signed(NumberAt(record, field.offset))));
}

/// What becomes of numbers that lines show as signed.
std::string Rendered(std::uint32_t number) {
  return Signed(number) < 0 ? fmt::format(", rendered as {}", Signed(number)) : "";
}

void DescribeUnsigned(RecordKind, std::string_view record, RecordField& field) {
  const std::uint32_t number = NumberAt(record, field.offset);
  field.meaning.push_back(fmt::format("{}{}", number, Rendered(number)));
}

void DescribeType(RecordKind kind, std::string_view record, RecordField& field) {
  switch (NumberAt(record, field.offset)) {
    case VMETRICS_HEADER_INDEX_FRAMEWORK:
      field.meaning.emplace_back("0, of the framework's modules");
      break;
    case VMETRICS_HEADER_INDEX_CONNECTION:
      field.meaning.emplace_back("2, of a client's connecting");
      break;
    case VMETRICS_HEADER_INDEX_TRANSPORT:
      field.meaning.emplace_back("3, of the transport");
      break;
    default:
      DescribeUnsigned(kind, record, field);
  }
}

void DescribeMetric(RecordKind kind, std::string_view record, RecordField& field) {
  const MetricEntry* metric = MetricOf(kind, record);
  if (metric == nullptr) {
    field.surprises.emplace_back("not in the catalogue");
    return;
  }
  field.meaning.push_back(fmt::format("{}: {}, {}", Printable((*metric)[1]),
                                      Printable((*metric)[0]),
                                      IsPrivate(*metric) ? "private" : "not private"));
}

std::string Titled(unsigned int byte, std::string_view title) {
  return HexadecimalByte(byte) + (title.empty() ? "" : fmt::format(" ({})", title));
}

void DescribeId(RecordKind kind, std::string_view record, RecordField& field) {
  const std::uint32_t number = NumberAt(record, field.offset);
  const int id = Signed(number);
  field.meaning.push_back(fmt::format("{} = {}{}", number, HexadecimalId(id), Rendered(number)));
  field.meaning.push_back(fmt::format("moduleId {}: group {}, side {}; index {}", number >> 16U,
                                      Titled(GroupOf(id), TitleOfGroup(GroupOf(id))),
                                      Titled(SideOf(id), NameOfSide(SideOf(id))),
                                      number & 0xFFFFU));
  DescribeMetric(kind, record, field);
}

void DescribeText(RecordKind, std::string_view record, RecordField& field) {
  const std::string_view text = TextAt(record, field.offset);
  field.meaning.push_back(fmt::format("\"{}\"", Printable(text)));
  if (text.size() >= field.bytes.size()) {
    field.surprises.push_back(
        fmt::format("no terminator within its {} bytes{}", field.bytes.size(),
                    text.size() > field.bytes.size() ? ": it runs on into what follows" : ""));
    return;
  }
  const std::string_view behind = field.bytes.substr(text.size());
  const auto bytes = static_cast<std::size_t>(
      std::count_if(behind.begin(), behind.end(), [](char byte) { return byte != '\0'; }));
  if (bytes > 0) {
    field.surprises.push_back(
        fmt::format("{} behind the terminator that {} not zero and not rendered",
                    Counted(bytes, "byte"), bytes == 1 ? "is" : "are"));
  }
}

void DescribeEventId(RecordKind kind, std::string_view record, RecordField& field) {
  DescribeText(kind, record, field);
  DescribeMetric(kind, record, field);
}

void DescribeLength(RecordKind, std::string_view record, RecordField& field) {
  const std::uint32_t length = NumberAt(record, field.offset);
  field.meaning.push_back(fmt::format("{}", length));
  if (length > kLongestRenderedValue) {
    field.surprises.push_back(fmt::format("{} are the most", kLongestRenderedValue));
  }
}

constexpr FieldLayout kMessageHeader[] = {
    {"reserved0", 4, DescribeUnread}, {"srcModuleId", 4, DescribeSigned},
    {"reserved8", 4, DescribeUnread}, {"dstModuleId", 4, DescribeSigned},
    {"msgType", 4, DescribeSigned},   {"reserved20", 4, DescribeUnread}};

constexpr FieldLayout kNumericHeader[] = {{"terminalId", 4, DescribeUnsigned},
                                          {"eventId", 4, DescribeId},
                                          {"dataLength", 4, DescribeLength}};

constexpr FieldLayout kStringHeader[] = {
    {"terminalId", 4, DescribeUnsigned},
    {"type", 4, DescribeType},
    {"eventId", sizeof(VMetricsDataString::eventId), DescribeEventId},
    {"userName", sizeof(VMetricsDataString::userName), DescribeText},
    {"transactionId", sizeof(VMetricsDataString::transactionId), DescribeText},
    {"businessType", sizeof(VMetricsDataString::businessType), DescribeText},
    {"serviceName", sizeof(VMetricsDataString::serviceName), DescribeText},
    {"dataLength", 4, DescribeLength}};

/// Adds the fields of a header, or as many as the record has.
template <std::size_t count>
void AddHeader(const FieldLayout (&layouts)[count], RecordKind kind, std::string_view record,
               std::vector<RecordField>& fields) {
  for (const FieldLayout& layout : layouts) {
    const std::size_t offset =
        fields.empty() ? 0 : fields.back().offset + fields.back().bytes.size();
    if (offset == record.size()) {
      return;
    }
    RecordField field{layout.name, offset, record.substr(offset, layout.width), {}, {}};
    if (field.bytes.size() < layout.width) {
      field.surprises.push_back(
          fmt::format("cut short: {} of {} bytes", field.bytes.size(), layout.width));
    } else {
      layout.describe(kind, record, field);
    }
    fields.push_back(std::move(field));
  }
}

}  // namespace

std::vector<RecordField> FieldsOf(RecordKind kind, std::string_view record) {
  std::vector<RecordField> fields;
  if (kind == RecordKind::kString) {
    AddHeader(kStringHeader, kind, record, fields);
  } else {
    if (kind == RecordKind::kMessage) {
      AddHeader(kMessageHeader, kind, record, fields);
    }
    AddHeader(kNumericHeader, kind, record, fields);
  }
  const std::size_t headerSize = HeaderSize(kind);
  if (record.size() >= headerSize && AnnouncedLength(kind, record.data()) <= kLongestValue) {
    fields.push_back(ValueField(kind, record));
  }
  return fields;
}

}  // namespace vmetrics
