#include "VJson.h"

#include "JsonText.h"

namespace {

/// Room for a usual record, so that adding its members asks for memory once.
constexpr std::size_t kFirstCapacity = 256;

/// Takes an object's text back to what it was unless told that the change is complete.
class Rollback {
 public:
  explicit Rollback(std::string& text) : text_(text), size_(text.size()) {}
  ~Rollback() {
    if (!complete_) {
      text_.resize(size_);  // Within the room that the text had before, so it cannot throw.
      text_.back() = '}';
    }
  }
  Rollback(const Rollback&) = delete;
  Rollback& operator=(const Rollback&) = delete;

  void Complete() { complete_ = true; }

 private:
  std::string& text_;
  const std::size_t size_;
  bool complete_ = false;
};

}  // namespace

namespace VJson {

Value::Value() : text_("{}") {}

template <typename AppendValue>
void Value::AddMember(std::string_view key, AppendValue appendValue) {
  if (text_[0] != '{') {
    return;
  }
  if (text_.capacity() < kFirstCapacity) {
    text_.reserve(kFirstCapacity);
  }
  Rollback rollback(text_);
  if (text_.size() == 2) {
    text_.pop_back();
  } else {
    text_.back() = ',';
  }
  JsonText::AppendString(text_, key);
  text_.push_back(':');
  appendValue(text_);
  text_.push_back('}');
  rollback.Complete();
}

void Value::AddJsonValue(std::string_view key, const std::string& value) {
  AddMember(key, [&](std::string& out) { JsonText::AppendString(out, value); });
}

void Value::AddJsonValue(std::string_view key, const char* value) {
  AddMember(key,
            [&](std::string& out) { JsonText::AppendString(out, value == nullptr ? "" : value); });
}

void Value::AddJsonValue(std::string_view key, int value) {
  AddJsonValue(key, static_cast<long>(value));
}

void Value::AddJsonValue(std::string_view key, unsigned int value) {
  AddJsonValue(key, static_cast<unsigned long>(value));
}

void Value::AddJsonValue(std::string_view key, long value) {
  AddMember(key, [&](std::string& out) { JsonText::AppendNumber(out, value); });
}

void Value::AddJsonValue(std::string_view key, unsigned long value) {
  AddMember(key, [&](std::string& out) { JsonText::AppendNumber(out, value); });
}

void Value::AddJsonValue(std::string_view key, double value) {
  AddMember(key, [&](std::string& out) { JsonText::AppendNumber(out, value); });
}

void Value::AddJsonValue(std::string_view key, bool value) {
  AddMember(key, [&](std::string& out) { out.append(value ? "true" : "false"); });
}

void Value::Add(std::string_view key, const Value& value) {
  if (&value == this) {
    Add(key, Value(value));
    return;
  }
  AddMember(key, [&](std::string& out) { out.append(value.text_); });
}

bool Value::Parse(const std::string& text) {
  if (!JsonText::IsValid(text)) {
    return false;
  }
  text_ = JsonText::Compacted(text);
  return true;
}

std::string Value::ToString() const& { return text_; }

std::string Value::ToString() && {
  std::string text = std::move(text_);
  text_ = "{}";
  return text;
}

}  // namespace VJson
