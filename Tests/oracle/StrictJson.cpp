#include "StrictJson.h"

#include "TextModel.h"

namespace Oracle {
namespace {

/// The grammar of RFC 8259, one function a rule; each takes its part off the front of the text.
class Grammar {
 public:
  explicit Grammar(std::string_view text) : rest_(text) {}

  bool Document() { return Element(0) && rest_.empty(); }

  const std::string& Compact() const { return compact_; }

 private:
  static constexpr int kDeepest = 128;

  char Next() const { return rest_.empty() ? '\0' : rest_[0]; }
  bool Is(char first, char last) const {
    return !rest_.empty() && rest_[0] >= first && rest_[0] <= last;
  }

  void Take(std::size_t count) {
    compact_ += rest_.substr(0, count);
    rest_.remove_prefix(count);
  }

  bool Take(char expected) {
    if (rest_.empty() || rest_[0] != expected) {
      return false;
    }
    Take(std::size_t{1});
    return true;
  }

  void WhiteSpace() {
    while (!rest_.empty() && std::string_view(" \t\n\r").find(rest_[0]) != std::string_view::npos) {
      rest_.remove_prefix(1);
    }
  }

  bool Word(std::string_view word) {
    const bool matches = rest_.substr(0, word.size()) == word;
    if (matches) {
      Take(word.size());
    }
    return matches;
  }

  bool Element(int depth) {
    WhiteSpace();
    const bool valid = Value(depth);
    WhiteSpace();
    return valid;
  }

  bool Value(int depth) {
    switch (Next()) {
      case '{':
        return List('}', depth + 1, [this](int level) { return Member(level); });
      case '[':
        return List(']', depth + 1, [this](int level) { return Element(level); });
      case '"':
        return String();
      case 't':
        return Word("true");
      case 'f':
        return Word("false");
      case 'n':
        return Word("null");
      default:
        return Number();
    }
  }

  template <typename Item>
  bool List(char end, int depth, Item item) {
    if (depth > kDeepest) {
      return false;
    }
    Take(std::size_t{1});
    WhiteSpace();
    if (Take(end)) {
      return true;
    }
    do {
      if (!item(depth)) {
        return false;
      }
    } while (Take(','));
    return Take(end);
  }

  bool Member(int depth) {
    WhiteSpace();
    if (!String()) {
      return false;
    }
    WhiteSpace();
    return Take(':') && Element(depth);
  }

  bool Digits() {
    if (!Is('0', '9')) {
      return false;
    }
    while (Is('0', '9')) {
      Take(std::size_t{1});
    }
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

  bool String() {
    if (!Take('"')) {
      return false;
    }
    while (!Take('"')) {
      if (!Character()) {
        return false;
      }
    }
    return true;
  }

  bool Character() {
    if (rest_.empty() || Is('\0', '\x1F')) {
      return false;
    }
    if (Take('\\')) {
      return Escape();
    }
    const Part part = FirstPart(rest_);
    Take(part.length);
    return part.wellFormed;
  }

  bool Escape() {
    if (rest_.empty()) {
      return false;
    }
    if (!Take('u')) {
      const bool known = std::string_view("\"\\/bfnrt").find(rest_[0]) != std::string_view::npos;
      Take(std::size_t{1});
      return known;
    }
    const int unit = CodeUnit();
    if (unit < 0xD800 || unit > 0xDFFF) {
      return unit >= 0;
    }
    if (unit > 0xDBFF || !Word("\\u")) {
      return false;
    }
    const int second = CodeUnit();
    return second >= 0xDC00 && second <= 0xDFFF;
  }

  /// Four hexadecimal digits; -1 if they are not there.
  int CodeUnit() {
    int unit = 0;
    for (int i = 0; i < 4; ++i) {
      const std::size_t digit =
          rest_.empty() ? std::string_view::npos
                        : std::string_view("0123456789abcdef0123456789ABCDEF").find(rest_[0]);
      if (digit == std::string_view::npos) {
        return -1;
      }
      unit = unit * 16 + static_cast<int>(digit % 16);
      Take(std::size_t{1});
    }
    return unit;
  }

  std::string_view rest_;
  std::string compact_;
};

}  // namespace

std::optional<std::string> Compacted(std::string_view text) {
  Grammar grammar(text);
  if (!grammar.Document()) {
    return std::nullopt;
  }
  return grammar.Compact();
}

}  // namespace Oracle
