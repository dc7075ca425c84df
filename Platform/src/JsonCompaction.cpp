// Foreign JSON, checked and compacted in one pass. It is written here, as the payload is most of
// what an event costs: docs/dependencies.md tells what libraries take for it.

#include <string>
#include <string_view>

#include "JsonText.h"
#include "PlainText.h"
#include "Utf8.h"

namespace {

constexpr int kDeepestNesting = 128;

bool IsWhiteSpace(char character) {
  // Mostly it is neither, which the first comparison tells.
  return character <= ' ' &&
         (character == ' ' || character == '\n' || character == '\r' || character == '\t');
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

/// The value of a hexadecimal digit, or -1.
int HexadecimalDigit(char character) {
  if (IsDigit(character)) {
    return character - '0';
  }
  const char lower = static_cast<char>(character | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Reads a text and writes it again, value by value. Each function reads what it is named after,
/// from the present position on, and returns false where that does not stand there.
///
/// The text ends with a NUL, which is nowhere allowed in JSON: so no function looks for the end.
class Compactor {
 public:
  Compactor(const std::string& text, char* out)
      : in_(text.c_str()), end_(in_ + text.size()), out_(out) {}

  char* End() const { return out_; }

  bool Text() {
    SkipWhiteSpace();
    do {
      if (!Value()) {
        return false;
      }
    } while (depth_ > 0);
    return in_ == end_;
  }

 private:
  void Copy() { *out_++ = *in_++; }

  bool Take(char character) {
    if (*in_ != character) {
      return false;
    }
    Copy();
    return true;
  }

  void SkipWhiteSpace() {
    while (IsWhiteSpace(*in_)) {
      ++in_;
    }
  }

  /// A value with the ends of all that is complete with it, and what leads to the next one; or the
  /// beginning of a container that is not empty.
  bool Value() {
    const bool opens = *in_ == '{' || *in_ == '[';
    if (!(opens ? Opening() : Scalar())) {
      return false;
    }
    if (opens && *in_ != closing_[depth_]) {
      return Key();
    }
    Closings();
    return depth_ == 0 || (Comma() && Key());
  }

  bool Opening() {
    if (depth_ == kDeepestNesting) {
      return false;
    }
    closing_[++depth_] = *in_ == '{' ? '}' : ']';
    Copy();
    SkipWhiteSpace();
    return true;
  }

  void Closings() {
    SkipWhiteSpace();
    while (depth_ > 0 && Take(closing_[depth_])) {
      --depth_;
      SkipWhiteSpace();
    }
  }

  bool Comma() {
    const bool taken = Take(',');
    SkipWhiteSpace();
    return taken;
  }

  /// What an object has before each value, and an array has not.
  bool Key() {
    if (closing_[depth_] != '}') {
      return true;
    }
    if (!String()) {
      return false;
    }
    SkipWhiteSpace();
    const bool taken = Take(':');
    SkipWhiteSpace();
    return taken;
  }

  bool Scalar() {
    switch (*in_) {
      case '"':
        return String();
      case 't':
        return Literal("true");
      case 'f':
        return Literal("false");
      case 'n':
        return Literal("null");
      default:
        return Number();
    }
  }

  bool Literal(std::string_view literal) {
    if (std::string_view(in_, Left()).substr(0, literal.size()) != literal) {
      return false;
    }
    out_ += literal.copy(out_, literal.size());
    in_ += literal.size();
    return true;
  }

  bool Number() {
    Take('-');
    if (!Take('0') && !Digits()) {
      return false;
    }
    if (Take('.') && !Digits()) {
      return false;
    }
    if (Take('e') || Take('E')) {
      if (!Take('+')) {
        Take('-');
      }
      return Digits();
    }
    return true;
  }

  bool Digits() {
    const char* const first = in_;
    while (IsDigit(*in_)) {
      Copy();
    }
    return in_ != first;
  }

  bool String() {
    if (!Take('"')) {
      return false;
    }
    do {
      const std::size_t plain = PlainText::CopyPlain(out_, in_, Left());
      in_ += plain;
      out_ += plain;
      if (Take('"')) {
        return true;
      }
    } while (*in_ == '\\' ? Escape() : Sequence());
    return false;
  }

  bool Escape() {
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    Copy();
    if (*in_ == 'u') {
      return UnicodeEscape();
    }
    if (*in_ == '\0' || kLetters.find(*in_) == std::string_view::npos) {
      return false;
    }
    Copy();
    return true;
  }

  /// A character outside the basic plane is two escapes, a high and a low surrogate; neither stands
  /// alone.
  bool UnicodeEscape() {
    const int unit = CodeUnit();
    if (unit < 0xD800 || unit > 0xDFFF) {
      return unit >= 0;
    }
    if (unit > 0xDBFF || !Take('\\') || *in_ != 'u') {
      return false;
    }
    const int low = CodeUnit();
    return low >= 0xDC00 && low <= 0xDFFF;
  }

  /// The letter u and four digits; -1 where they are not.
  int CodeUnit() {
    Copy();
    int unit = 0;
    for (int i = 0; i < 4; ++i) {
      const int digit = HexadecimalDigit(*in_);
      if (digit < 0) {
        return -1;
      }
      unit = 16 * unit + digit;
      Copy();
    }
    return unit;
  }

  /// One character that is not plain, and needs no escape either.
  bool Sequence() {
    if (static_cast<unsigned char>(*in_) < 0x7F) {
      return false;  // A control character, or the end.
    }
    const Utf8::Sequence sequence = Utf8::First({in_, Left()});
    for (std::size_t i = 0; i < sequence.length; ++i) {
      Copy();
    }
    return sequence.wellFormed;
  }

  std::size_t Left() const { return static_cast<std::size_t>(end_ - in_); }

  const char* in_;
  const char* const end_;
  char* out_;
  int depth_ = 0;
  char closing_[kDeepestNesting + 1] = {};  ///< How each open container ends, from the second on.
};

}  // namespace

char* JsonText::WriteCompacted(char* out, const std::string& text) {
  Compactor compactor(text, out);
  return compactor.Text() ? compactor.End() : nullptr;
}
