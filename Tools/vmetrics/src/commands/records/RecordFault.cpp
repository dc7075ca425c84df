#include "RecordFault.h"

#include <fmt/format.h>

#include "JsonFault.h"
#include "RecordMetric.h"
#include "Text.h"

namespace vmetrics {

namespace {

/// Exact, though the line is not parsed: within a string of it a quote stands behind a backslash,
/// and in front of the member there are but strings and numbers.
bool HasArguments(std::string_view line) { return line.find(",\"args\":") != line.npos; }

std::string ReasonForNoArguments(RecordKind kind, std::string_view record) {
  const MetricEntry* metric = MetricOf(kind, record);
  if (metric == nullptr) {
    return fmt::format("ID {} is not in the catalogue", IdOf(kind, record));
  }
  const std::string_view value = UpToNul(record.substr(HeaderSize(kind)));
  return fmt::format("the value of {} is not JSON: {}", Printable((*metric)[1]),
                     JsonFaultOf(value));
}

}  // namespace

std::string FaultOf(RecordKind kind, std::string_view record, std::string_view line) {
  if (line.empty()) {
    return fmt::format("is not rendered, as it announces {} of value; {} are the most",
                       Counted(AnnouncedLength(kind, record.data()), "byte"),
                       kLongestRenderedValue);
  }
  if (HasArguments(line)) {
    return {};
  }
  return fmt::format("has no args, as {}", ReasonForNoArguments(kind, record));
}

std::string FaultOfRest(RecordKind kind, std::string_view rest) {
  const std::size_t headerSize = HeaderSize(kind);
  if (rest.size() < headerSize) {
    return fmt::format("is cut short: of its header of {} there {}", Counted(headerSize, "byte"),
                       rest.size() == 1 ? "is 1" : fmt::format("are {}", rest.size()));
  }
  const std::uint32_t length = AnnouncedLength(kind, rest.data());
  if (length > kLongestValue) {
    return fmt::format(
        "announces {} of value, which is no length: where the next record begins is unknown",
        Counted(length, "byte"));
  }
  const std::size_t there = rest.size() - headerSize;
  return fmt::format("is cut short: of its value of {} there {}", Counted(length, "byte"),
                     there == 1 ? "is 1" : fmt::format("are {}", there));
}

std::string JsonFaultOf(std::string_view text) {
  const std::optional<JsonFault> fault = FindJsonFault(text);
  if (!fault) {
    return {};
  }
  if (fault->offset == text.size()) {
    return fmt::format("{} at byte {} of it, where it ends", fault->problem, fault->offset);
  }
  const char letter = text[fault->offset];
  return letter > ' ' && letter < 0x7F
             ? fmt::format("{} at byte {} of it, '{}'", fault->problem, fault->offset, letter)
             : fmt::format("{} at byte {} of it, 0x{:02X}", fault->problem, fault->offset,
                           static_cast<unsigned char>(letter));
}

}  // namespace vmetrics
