#include "VJson.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "JsonText.h"

namespace VJson {

Value::Value() : text_(shortText_), size_(2), capacity_(sizeof shortText_) {
  std::memcpy(text_, "{}", 2);
}

Value::Value(const Value& other) : text_(shortText_), size_(0), capacity_(sizeof shortText_) {
  *this = other;
}

Value& Value::operator=(const Value& other) {
  if (this != &other) {
    Reserve(other.size_);
    std::memcpy(text_, other.text_, other.size_);
    size_ = other.size_;
  }
  return *this;
}

/// Makes room for a text of `capacity` bytes, the present one kept.
void Value::Reserve(std::size_t capacity) {
  if (capacity <= capacity_) {
    return;
  }
  const std::size_t grown = std::max(capacity, 2 * capacity_);
  std::unique_ptr<char[]> longer(new char[grown]);
  std::memcpy(longer.get(), text_, size_);
  longText_ = std::move(longer);
  text_ = longText_.get();
  capacity_ = grown;
}

/// Adds a member whose value `writeValue` puts at the place it is given, in `room` bytes at most.
template <typename WriteValue>
void Value::AddMember(std::string_view key, std::size_t room, WriteValue writeValue) {
  if (text_[0] != '{') {
    return;
  }
  // Only this can run out of memory, and then nothing has changed yet.
  Reserve(size_ + JsonText::StringRoom(key) + room + 2);
  char* out = text_ + size_ - 1;  // In place of the closing brace.
  if (size_ > 2) {
    *out++ = ',';
  }
  out = JsonText::WriteString(out, key);
  *out++ = ':';
  out = writeValue(out);
  *out++ = '}';
  size_ = static_cast<std::size_t>(out - text_);
}

template <typename Number>
void Value::AddNumber(std::string_view key, Number value) {
  AddMember(key, JsonText::kNumberRoom,
            [value](char* out) { return JsonText::WriteNumber(out, value); });
}

void Value::AddString(std::string_view key, std::string_view value) {
  AddMember(key, JsonText::StringRoom(value),
            [value](char* out) { return JsonText::WriteString(out, value); });
}

void Value::AddText(std::string_view key, std::string_view json) {
  AddMember(key, json.size(), [json](char* out) { return out + json.copy(out, json.size()); });
}

void Value::AddJsonValue(std::string_view key, const std::string& value) { AddString(key, value); }

void Value::AddJsonValue(std::string_view key, const char* value) {
  AddString(key, value == nullptr ? std::string_view() : std::string_view(value));
}

void Value::AddJsonValue(std::string_view key, int value) { AddNumber<long>(key, value); }

void Value::AddJsonValue(std::string_view key, unsigned int value) {
  AddNumber<unsigned long>(key, value);
}

void Value::AddJsonValue(std::string_view key, long value) { AddNumber(key, value); }

void Value::AddJsonValue(std::string_view key, unsigned long value) { AddNumber(key, value); }

void Value::AddJsonValue(std::string_view key, double value) { AddNumber(key, value); }

void Value::AddJsonValue(std::string_view key, bool value) {
  AddText(key, value ? "true" : "false");
}

void Value::Add(std::string_view key, const Value& value) {
  if (&value == this) {
    Add(key, Value(value));
    return;
  }
  AddText(key, value.Text());
}

bool Value::Parse(const std::string& text) {
  // Written behind what is there, which stays if the text turns out not to be JSON.
  Reserve(size_ + JsonText::CompactedRoom(text.size()));
  char* const begin = text_ + size_;
  const char* const end = JsonText::WriteCompacted(begin, text);
  if (end == nullptr) {
    return false;
  }
  size_ = static_cast<std::size_t>(end - begin);
  std::memmove(text_, begin, size_);
  return true;
}

std::string Value::ToString() const { return std::string(Text()); }

}  // namespace VJson
