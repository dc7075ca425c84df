#include "RecordModel.h"

#include <cstring>

#include "DoubleText.h"
#include "StrictJson.h"
#include "TextModel.h"

namespace Oracle {
namespace {

constexpr std::uint32_t kLongestValue = 65535;

std::int32_t Signed(std::uint32_t bits) {
  return bits < 0x80000000U ? static_cast<std::int32_t>(bits)
                            : -1 - static_cast<std::int32_t>(0xFFFFFFFFU - bits);
}

std::int64_t Signed(std::uint64_t bits) {
  return bits < 0x8000000000000000U ? static_cast<std::int64_t>(bits)
                                    : -1 - static_cast<std::int64_t>(0xFFFFFFFFFFFFFFFFU - bits);
}

std::uint32_t Word(const char* bytes) {
  return static_cast<std::uint32_t>(Number(std::string_view(bytes, 4), 4));
}

std::string SignedText(std::uint32_t bits) { return std::to_string(Signed(bits)); }

std::string_view UpToNul(std::string_view bytes) { return bytes.substr(0, bytes.find('\0')); }

double Real(std::uint64_t bits) {
  double real;
  std::memcpy(&real, &bits, sizeof real);
  return real;
}

/// The value of a type that stands as a member under its name; none for "json" and unknown types.
std::optional<Value> MemberValue(const std::string& type, std::string_view value) {
  if (type == "string") {
    return Text(UpToNul(value));
  }
  if (type == "int") {
    return Integer(Signed(static_cast<std::uint32_t>(Number(value, 4))));
  }
  if (type == "uint64_t") {
    return Unsigned(Number(value, 8));
  }
  if (type == "int64_t") {
    return Integer(Signed(Number(value, 8)));
  }
  if (type == "double") {
    return Value{Value::Kind::kReal, "", Real(Number(value, 8))};
  }
  if (type == "bool") {
    return Value{Value::Kind::kBool, "", 0, Number(value, 1) != 0};
  }
  if (type == "enum") {
    return Text(SignedText(static_cast<std::uint32_t>(Number(value, 4))));
  }
  return std::nullopt;
}

std::string ValueText(const Value& value) {
  switch (value.kind) {
    case Value::Kind::kText:
      return Quoted(value.text);
    case Value::Kind::kReal:
      return DoubleText(value.real);
    case Value::Kind::kBool:
      return value.truth ? "true" : "false";
    case Value::Kind::kObject:
      return Line(value.members);
    case Value::Kind::kInteger:
    case Value::Kind::kJson:
      break;
  }
  return value.text;
}

template <typename Catalogue>
void AddArguments(const Catalogue& catalogue, const typename Catalogue::key_type& key,
                  std::string_view value, Object& object) {
  const auto found = catalogue.find(key);
  if (found == catalogue.end()) {
    return;
  }
  std::optional<Value> arguments = Arguments(found->second, value);
  if (arguments.has_value()) {
    object.push_back({"args", std::move(*arguments)});
  }
}

void Put(std::string& record, std::size_t offset, std::string_view bytes) {
  record.replace(offset, bytes.size(), bytes);
}

void PutWord(std::string& record, std::size_t offset, std::uint32_t word) {
  for (std::size_t i = 0; i < 4; ++i) {
    record[offset + i] = static_cast<char>(word >> 8 * i & 0xFF);
  }
}

}  // namespace

Value Text(std::string_view bytes) { return {Value::Kind::kText, std::string(bytes)}; }

Value Integer(std::int64_t number) { return {Value::Kind::kInteger, std::to_string(number)}; }

Value Unsigned(std::uint64_t number) { return {Value::Kind::kInteger, std::to_string(number)}; }

std::string Line(const Object& object) {
  std::string line = "{";
  for (const Member& member : object) {
    line += (line == "{" ? "" : ",") + Quoted(member.key) + ":" + ValueText(member.value);
  }
  return line + "}";
}

std::uint64_t Number(std::string_view bytes, std::size_t width) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < width && i < bytes.size(); ++i) {
    number |= std::uint64_t{static_cast<std::uint8_t>(bytes[i])} << 8 * i;
  }
  return number;
}

std::optional<Value> Arguments(const Metric& metric, std::string_view value) {
  if (metric.size() < 2) {
    return std::nullopt;
  }
  if (metric[0] == "json") {
    std::optional<std::string> json = Compacted(UpToNul(value));
    return json.has_value() ? std::optional(Value{Value::Kind::kJson, std::move(*json)})
                            : std::nullopt;
  }
  Value arguments{Value::Kind::kObject, ""};
  std::optional<Value> member = MemberValue(metric[0], value);
  if (member.has_value()) {
    arguments.members.push_back({metric[1], std::move(*member)});
  }
  return arguments;
}

std::optional<Object> NumericRecord(const char* record, std::uint64_t tick,
                                    const Metrics& metrics) {
  const std::uint32_t length = Word(record + 8);
  if (length > kLongestValue) {
    return std::nullopt;
  }
  const std::uint32_t id = Word(record + 4);
  Object object;
  object.push_back({"eventId", Text(SignedText(id))});
  object.push_back({"timestamp", Unsigned(tick)});
  object.push_back({"moduleId", Unsigned(id / 65536)});
  object.push_back({"terminalId", Text(SignedText(Word(record)))});
  AddArguments(metrics.numbered, Signed(id), {record + 12, length}, object);
  return object;
}

std::optional<Object> StringRecord(const char* record, std::uint64_t tick, const Metrics& metrics) {
  const std::uint32_t length = Word(record + 392);
  if (length > kLongestValue) {
    return std::nullopt;
  }
  const std::string_view header(record, 396);
  const auto text = [header](std::size_t offset) { return UpToNul(header.substr(offset)); };
  Object object;
  object.push_back({"eventId", Text(text(8))});
  object.push_back({"timestamp", Unsigned(tick)});
  object.push_back({"terminalId", Text(SignedText(Word(record)))});
  object.push_back({"type", Text(SignedText(Word(record + 4)))});
  object.push_back({"transactionId", Text(text(264))});
  object.push_back({"businessType", Text(text(328))});
  object.push_back({"serviceName", Text(text(360))});
  object.push_back({"userName", Text(text(136))});
  AddArguments(metrics.named, std::string(text(8)), {record + 396, length}, object);
  return object;
}

std::string PackedEvent(std::string_view eventId, std::string_view serviceName, std::uint32_t type,
                        std::string_view data) {
  std::string record(396, '\0');
  PutWord(record, 4, type);
  Put(record, 8, eventId);
  Put(record, 360, serviceName);
  PutWord(record, 392, static_cast<std::uint32_t>(data.size()));
  return record.append(data);
}

std::string EventLine(std::string_view eventId, std::string_view serviceName, std::uint32_t type,
                      std::string_view data, std::uint64_t tick, const Metrics& metrics) {
  if (eventId.size() > 128 || serviceName.size() > 32 || data.empty()) {
    return "";
  }
  const std::string record = PackedEvent(eventId, serviceName, type, data);
  return Line(StringRecord(record.data(), tick, metrics));
}

}  // namespace Oracle
