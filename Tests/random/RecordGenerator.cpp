#include "RecordGenerator.h"

#include <cstddef>

#include "Records.h"

std::uint64_t RandomNumbers::Next() {
  state_ += 0x9E3779B97F4A7C15;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
  mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
  return mixed ^ mixed >> 31;
}

RecordGenerator::RecordGenerator(std::uint64_t seed, const Oracle::Metrics& metrics)
    : random_(seed) {
  for (const auto& [id, metric] : metrics.numbered) {
    numbered_.push_back({Word(static_cast<std::uint32_t>(id)), metric.at(0)});
  }
  for (const auto& [id, metric] : metrics.named) {
    named_.push_back({id, metric.at(0)});
  }
}

// Here and below no expression asks for two random numbers without an order between them: every
// compiler must make the same records.

std::uint64_t RecordGenerator::Tick() {
  if (random_.OneIn(4)) {
    return Magnitude();
  }
  return 1700000000000 + random_.Below(1U << 30);
}

/// A number with anything from one to 64 bits.
std::uint64_t RecordGenerator::Magnitude() {
  const std::size_t missing = random_.Below(64);
  return random_.Next() >> missing;
}

GeneratedRecord RecordGenerator::Next() {
  const bool numeric = random_.OneIn(2);
  const Known* const known = Pick(numeric ? numbered_ : named_);
  std::string value = known == nullptr ? Text(20) : Value(known->type);
  const std::string length = AnnouncedLength(value);
  if (numeric) {
    const std::string id = known == nullptr ? Bytes(4) : known->id;
    return {true, Bytes(4) + id + length + value};
  }
  std::string id = known == nullptr ? Field(128) : known->id;
  id.resize(128);
  std::string header = Bytes(8) + id;
  for (const std::size_t width : {128U, 64U, 32U, 32U}) {
    header += Field(width);
  }
  return {false, header + length + value};
}

/// Null, one time in ten, for a metric that nobody knows.
const RecordGenerator::Known* RecordGenerator::Pick(const std::vector<Known>& known) {
  return random_.OneIn(10) ? nullptr : &known[random_.Below(known.size())];
}

std::string RecordGenerator::AnnouncedLength(std::string& value) {
  if (random_.OneIn(500)) {
    value.clear();
    return Word(65536 + static_cast<std::uint32_t>(random_.Next() >> 32) % 0xFFFF0000);
  }
  return Word(static_cast<std::uint32_t>(value.size()));
}

std::string RecordGenerator::Value(const std::string& type) {
  if (type == "json") {
    std::string json = Json(0);
    if (random_.OneIn(10)) {
      Break(json);
    }
    return json;
  }
  if (type == "string") {
    return Text(random_.OneIn(2000) ? 65535 : Length());
  }
  if (type == "int" || type == "enum") {
    return FixedWidth(4);
  }
  return FixedWidth(type == "bool" ? 1 : 8);
}

/// Changes one byte; not into what could make a number too large for a parser.
void RecordGenerator::Break(std::string& json) {
  const std::size_t place = random_.Below(json.size());
  const char byte = static_cast<char>(random_.Next() & 0xFF);
  const bool inNumbers = (byte >= '0' && byte <= '9') || byte == 'e' || byte == 'E';
  json[place] = inNumbers ? '#' : byte;
}

/// Mostly as wide as the type; sometimes shorter or longer. Small numbers are as likely as any.
std::string RecordGenerator::FixedWidth(std::size_t width) {
  std::string value = Bytes(width);
  if (random_.OneIn(3)) {
    const char filler = random_.OneIn(2) ? '\xFF' : '\0';
    const std::size_t kept = random_.Below(width + 1);
    value.replace(kept, width - kept, width - kept, filler);
  }
  if (random_.OneIn(8)) {
    value.resize(random_.Below(12));
  }
  return value;
}

std::string RecordGenerator::Bytes(std::size_t count) {
  std::string bytes;
  while (bytes.size() < count) {
    bytes += static_cast<char>(random_.Next() & 0xFF);
  }
  return bytes;
}

std::size_t RecordGenerator::Length() {
  return random_.OneIn(20) ? random_.Below(2000) : random_.Below(40);
}

/// Whole characters, up to `most` bytes; one text in eight is bytes of any kind.
std::string RecordGenerator::Text(std::size_t most) {
  if (random_.OneIn(8)) {
    return Bytes(random_.Below(most + 1));
  }
  std::string text;
  for (std::string next = Character(); text.size() + next.size() <= most; next = Character()) {
    text += next;
  }
  return text;
}

/// A code point, ASCII more often than others, in UTF-8.
std::string RecordGenerator::Character() {
  const auto tail = [](std::size_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
  const std::size_t bits = random_.OneIn(4) ? random_.Below(22) : 7;
  const std::size_t point = random_.Below(std::size_t{1} << bits);
  if (point < 0x80) {
    return {static_cast<char>(point == 0 ? ' ' : point)};
  }
  if (point < 0x800) {
    return {static_cast<char>(0xC0 | point >> 6), tail(point)};
  }
  if (point < 0x10000) {
    return {static_cast<char>(0xE0 | point >> 12), tail(point >> 6), tail(point)};
  }
  return {static_cast<char>(0xF0 | (point >> 18 & 7)), tail(point >> 12), tail(point >> 6),
          tail(point)};
}

/// A text of a header; one in six fills its field, with no room for an end.
std::string RecordGenerator::Field(std::size_t width) {
  std::string field = random_.OneIn(6) ? Bytes(width) : Text(random_.Below(width));
  field.resize(width);
  return field;
}

std::string RecordGenerator::WhiteSpace() {
  std::string space;
  for (std::size_t i = random_.OneIn(6) ? random_.Below(3) : 0; i > 0; --i) {
    space += " \t\n\r"[random_.Below(4)];
  }
  return space;
}

std::string RecordGenerator::Json(int depth) {
  std::string value = WhiteSpace();
  switch (random_.Below(depth == 0 ? 2 : depth < 4 ? 7 : 5) + (depth == 0 ? 5 : 0)) {
    case 0:
      value += "true";
      break;
    case 1:
      value += "null";
      break;
    case 2:
    case 3:
      value += JsonNumber();
      break;
    case 4:
      value += JsonString();
      break;
    case 5:
      value += JsonList('[', ']', false, depth);
      break;
    default:
      value += JsonList('{', '}', true, depth);
  }
  return value += WhiteSpace();
}

std::string RecordGenerator::JsonList(char begin, char end, bool named, int depth) {
  std::string list(1, begin);
  const std::size_t count = random_.Below(5);
  for (std::size_t i = 0; i < count; ++i) {
    list += i == 0 ? "" : ",";
    if (named) {
      // A number in front: what a parser makes of a key that comes twice is its own business.
      list += WhiteSpace() + "\"" + std::to_string(i);
      list += JsonString().substr(1);
      list += WhiteSpace() + ":";
    }
    list += Json(depth + 1);
  }
  return list + end;
}

std::string RecordGenerator::JsonString() {
  static const std::string kEscapes[] = {"\\n",     "\\\"",    "\\\\",          "\\/",
                                         "\\u0000", "\\u00e9", "\\ud83d\\ude00"};
  std::string text = "\"";
  for (std::size_t i = random_.Below(12); i > 0; --i) {
    const std::string character = Character();
    const auto byte = static_cast<unsigned char>(character[0]);
    const bool plain = byte >= 0x20 && byte != '"' && byte != '\\';
    text += plain ? character : kEscapes[random_.Below(7)];
  }
  return text + "\"";
}

/// A number that a double can hold, so that every parser takes it.
std::string RecordGenerator::JsonNumber() {
  std::string number = random_.OneIn(2) ? "-" : "";
  number += std::to_string(Magnitude());
  if (random_.OneIn(3)) {
    number += "." + std::to_string(Magnitude());
  }
  if (random_.OneIn(6)) {
    number += "eE"[random_.Below(2)];
    number += random_.OneIn(2) ? "-" : "+";
    number += std::to_string(random_.Below(200));
  }
  return number;
}
