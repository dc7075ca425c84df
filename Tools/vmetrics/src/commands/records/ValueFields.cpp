#include "ValueFields.h"

#include <fmt/format.h>

#include <string>

#include "RecordFault.h"
#include "RecordMetric.h"
#include "Text.h"
#include "ValueType.h"

namespace vmetrics {

namespace {

std::string Bytes(std::size_t count) { return count == 0 ? "no bytes" : Counted(count, "byte"); }

/// The missing bytes of a number are read as zero, those too many not at all.
void DescribeNumber(const ValueType& type, RecordField& field) {
  const std::size_t size = field.bytes.size();
  std::string bytes(field.bytes.substr(0, type.width));
  bytes.resize(type.width, '\0');
  field.meaning.push_back(type.show(bytes));
  if (size < type.width) {
    field.surprises.push_back(fmt::format("{}, shorter than its type ({} has {}): zeros are added",
                                          Bytes(size), type.name, type.width));
  } else if (size > type.width) {
    field.surprises.push_back(
        fmt::format("{}, longer than its type ({} has {}): the rest is unread", Bytes(size),
                    type.name, type.width));
  }
  if (type.name == "bool" && static_cast<unsigned char>(bytes[0]) > 1) {
    field.surprises.emplace_back("neither 0 nor 1");
  }
}

void DescribeText(const ValueType& type, RecordField& field) {
  const std::string_view text = UpToNul(field.bytes);
  field.meaning.push_back(type.show(text));
  // A terminator is not needed and does no harm.
  if (text.size() + 1 < field.bytes.size()) {
    field.surprises.push_back(fmt::format("{} behind the NUL at byte {} of it, not rendered",
                                          Bytes(field.bytes.size() - text.size() - 1),
                                          text.size()));
  }
  if (type.name == "json") {
    if (const std::string fault = JsonFaultOf(text); !fault.empty()) {
      field.surprises.push_back("not JSON: " + fault);
    }
  }
}

void DescribeWhole(const MetricEntry* metric, RecordField& field) {
  if (metric == nullptr) {
    field.meaning.push_back(fmt::format("{} of unknown type", Bytes(field.bytes.size())));
    return;
  }
  const ValueType* type = FindValueType((*metric)[0]);
  if (type == nullptr) {
    field.meaning.push_back(Bytes(field.bytes.size()));
    field.surprises.push_back(fmt::format("{} is no type of value: an empty object is rendered",
                                          Printable((*metric)[0])));
    return;
  }
  (type->IsText() ? DescribeText : DescribeNumber)(*type, field);
}

}  // namespace

RecordField ValueField(RecordKind kind, std::string_view record) {
  const std::size_t offset = HeaderSize(kind);
  RecordField field{"data", offset, record.substr(offset), {}, {}};
  const std::uint32_t announced = AnnouncedLength(kind, record.data());
  if (field.bytes.size() < announced) {
    field.surprises.push_back(
        fmt::format("cut short: {} of {} bytes", field.bytes.size(), announced));
  } else if (announced > kLongestRenderedValue) {
    field.meaning.push_back(Bytes(announced));
  } else {
    DescribeWhole(MetricOf(kind, record), field);
  }
  return field;
}

}  // namespace vmetrics
