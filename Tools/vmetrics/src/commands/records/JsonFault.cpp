// The platform's parser tells only whether a text is JSON, and the parsers of others stop
// elsewhere: they look at a string or a number as a whole, or have limits of their own. So the
// grammar stands here once more, read letter by letter: what stops it is the first letter that
// cannot stand there.

#include "JsonFault.h"

namespace vmetrics {

namespace {

constexpr int kDeepestNesting = 128;
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";

/// Each function reads what it is named after, or returns false with the position at the fault.
class FaultFinder {
 public:
  explicit FaultFinder(std::string_view text) : text_(text) {}

  bool Text() {
    SkipBlanks();
    if (!Value(0)) {
      return false;
    }
    SkipBlanks();
    return at_ == text_.size() || Fail("something stands behind the value");
  }

  JsonFault Fault() const { return {at_, problem_}; }

 private:
  bool Fail(std::string_view problem) {
    problem_ = problem;
    return false;
  }

  bool IsAt(std::string_view among) const {
    return at_ < text_.size() && among.find(text_[at_]) != std::string_view::npos;
  }

  bool Take(std::string_view among) {
    const bool isThere = IsAt(among);
    at_ += isThere ? 1 : 0;
    return isThere;
  }

  bool Want(std::string_view among, std::string_view problem) {
    return Take(among) || Fail(problem);
  }

  void SkipBlanks() {
    while (Take(" \t\r\n")) {
    }
  }

  bool Value(int depth) {
    if (IsAt("{[")) {
      return depth < kDeepestNesting ? Container(depth + 1)
                                     : Fail("it is nested deeper than 128 levels");
    }
    if (IsAt("\"")) {
      return String();
    }
    if (IsAt("-0123456789")) {
      return Number();
    }
    return IsAt("tfn") ? Word() : Fail("a value is missing");
  }

  bool Container(int depth) {
    const bool isObject = IsAt("{");
    ++at_;
    const std::string_view closing = isObject ? "}" : "]";
    SkipBlanks();
    if (Take(closing)) {
      return true;
    }
    do {
      SkipBlanks();
      if ((isObject && !Name()) || !Value(depth)) {
        return false;
      }
      SkipBlanks();
    } while (Take(","));
    return Want(closing, isObject ? "a comma or } is missing" : "a comma or ] is missing");
  }

  bool Name() {
    if (!IsAt("\"")) {
      return Fail("a member's name in quotes is missing");
    }
    if (!String()) {
      return false;
    }
    SkipBlanks();
    if (!Want(":", "a colon is missing")) {
      return false;
    }
    SkipBlanks();
    return true;
  }

  bool Word() {
    const std::string_view word = IsAt("t") ? "true" : IsAt("f") ? "false" : "null";
    for (std::size_t letter = 0; letter < word.size(); ++letter) {
      if (!Want(word.substr(letter, 1), "there is no such word")) {
        return false;
      }
    }
    return true;
  }

  bool Number() {
    Take("-");
    if (!Take("0") && !Digits()) {
      return false;
    }
    if (Take(".") && !Digits()) {
      return false;
    }
    if (Take("eE")) {
      Take("+-");
      return Digits();
    }
    return true;
  }

  bool Digits() {
    if (!Want(kDigits, "a digit is missing")) {
      return false;
    }
    while (Take(kDigits)) {
    }
    return true;
  }

  bool String() {
    Take("\"");
    while (!Take("\"")) {
      if (!(Take("\\") ? Escape() : Character())) {
        return false;
      }
    }
    return true;
  }

  bool Escape() {
    if (Take("u")) {
      return UnicodeEscape();
    }
    return Want("\"\\/bfnrt", "there is no such escape");
  }

  /// Four digits. A character outside the basic plane takes two escapes, a high surrogate (D800 to
  /// DBFF) and a low one (DC00 to DFFF), neither of which stands alone.
  bool UnicodeEscape() {
    const bool mayBeSurrogate = IsAt("dD");
    if (!HexDigit()) {
      return false;
    }
    if (mayBeSurrogate && IsAt("cdefCDEF")) {
      return Fail("a low surrogate stands alone");
    }
    const bool isHigh = mayBeSurrogate && IsAt("89abAB");
    return HexDigit() && HexDigit() && HexDigit() && (!isHigh || LowSurrogate());
  }

  bool LowSurrogate() {
    constexpr std::string_view kAlone = "a high surrogate stands alone";
    return Want("\\", kAlone) && Want("u", kAlone) && Want("dD", kAlone) &&
           Want("cdefCDEF", kAlone) && HexDigit() && HexDigit();
  }

  bool HexDigit() { return Want(kHexDigits, "a hexadecimal digit is missing"); }

  unsigned int Byte() const {
    return at_ < text_.size() ? static_cast<unsigned char>(text_[at_]) : 0U;
  }

  bool Character() {
    const unsigned int first = Byte();
    if (first < 0x20) {
      return Fail(at_ == text_.size() ? "a string is not closed"
                                      : "a control character is not escaped");
    }
    if (first < 0x80) {
      ++at_;
      return true;
    }
    return Sequence(first);
  }

  /// More than one byte, in the ranges of the Unicode standard's table: they keep out overlong
  /// forms, surrogates and what lies beyond U+10FFFF.
  bool Sequence(unsigned int first) {
    if (first < 0xC2 || first > 0xF4) {
      return Fail("it is no UTF-8");
    }
    ++at_;
    unsigned int least = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    unsigned int greatest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    for (int left = first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3; left > 0; --left) {
      if (Byte() < least || Byte() > greatest) {
        return Fail("it is no UTF-8");
      }
      ++at_;
      least = 0x80;
      greatest = 0xBF;
    }
    return true;
  }

  const std::string_view text_;
  std::size_t at_ = 0;
  std::string_view problem_;
};

}  // namespace

std::optional<JsonFault> FindJsonFault(std::string_view text) {
  FaultFinder finder(text);
  return finder.Text() ? std::nullopt : std::optional(finder.Fault());
}

}  // namespace vmetrics
