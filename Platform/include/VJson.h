/// \file
/// JSON texts, built member by member or taken over from elsewhere. It needs C++17; the other
/// headers take C++11.
///
/// Example:
///
///     VJson::Value step;
///     step.AddJsonValue("stepName", "Connect");
///     step.AddJsonValue("errorCode", 0);
///     VJson::Value line;
///     line.Add("args", step);
///     line.ToString();  // {"args":{"stepName":"Connect","errorCode":0}}
#ifndef VJSON_H_
#define VJSON_H_

#if __cplusplus < 201703L
#error "VJson.h needs C++17 or later."
#endif

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace VJson {

/// One JSON value. A new one is the empty object.
///
/// The text form is compact and keeps the order of insertion; a key that is added twice stands
/// there twice. It is one line of valid JSON whatever was put in: `"`, `\` and the control
/// characters 0x00 to 0x1F and 0x7F are escaped, and each ill-formed UTF-8 sequence becomes U+FFFD.
/// Nothing in it depends on the C or C++ locale.
///
/// An object may be used by one thread at a time. Running out of memory throws std::bad_alloc and
/// leaves the value as it was.
class Value {
 public:
  /// The empty object.
  Value();
  // A value is never moved, as one without a text would be left behind; it is small enough to copy.
  /// A copy, with a text of its own.
  Value(const Value& other);
  /// Becomes a copy of `other`, which may be the value itself.
  Value& operator=(const Value& other);

  ///@{
  /// Adds a member. A value that is not an object, which only Parse can make, takes none and stays
  /// as it is. A null text counts as an empty one.
  void AddJsonValue(std::string_view key, const std::string& value);
  void AddJsonValue(std::string_view key, const char* value);
  void AddJsonValue(std::string_view key, int value);
  void AddJsonValue(std::string_view key, unsigned int value);
  void AddJsonValue(std::string_view key, long value);
  void AddJsonValue(std::string_view key, unsigned long value);
  /// The shortest text that reads back as the same number; NaN and the infinities become null.
  void AddJsonValue(std::string_view key, double value);
  void AddJsonValue(std::string_view key, bool value);
  ///@}

  /// Adds a copy of `value` as a member, which may be the value itself.
  void Add(std::string_view key, const Value& value);

  /// Becomes the value that `text` holds; returns false and stays as it was if it holds none.
  ///
  /// `text` must be JSON as RFC 8259 has it, all of it: no byte order mark, no ill-formed UTF-8, no
  /// lone surrogate escape, at most 128 levels of nesting. Strings and numbers are kept letter for
  /// letter, members in their order; white space between them is dropped.
  bool Parse(const std::string& text);

  /// The JSON text.
  std::string ToString() const;

 private:
  template <typename WriteValue>
  void AddMember(std::string_view key, std::size_t room, WriteValue writeValue);
  template <typename Number>
  void AddNumber(std::string_view key, Number value);
  void AddString(std::string_view key, std::string_view value);
  void AddText(std::string_view key, std::string_view json);

  std::string_view Text() const { return {text_, size_}; }
  void Reserve(std::size_t capacity);

  // A value is its own text, {"a":1,"b":2}, complete at any time. A usual record fits into the
  // value itself, so that building one allocates nothing.
  char* text_;  ///< shortText_, or longText_ once the text does not fit any more.
  std::size_t size_;
  std::size_t capacity_;
  std::unique_ptr<char[]> longText_;
  char shortText_[512];
};

}  // namespace VJson

#endif  // VJSON_H_
