/// A desktop host's locale: a decimal comma, and dots between groups of three digits.
#ifndef COMMALOCALE_H_
#define COMMALOCALE_H_

#include <sys/stat.h>

#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <locale>
#include <stdexcept>
#include <string>

#include "FileContent.h"
#include "TemporaryDirectory.h"

/// While an object lives, this is the global locale of C++ and of C. No locale package is needed:
/// C++ gets a facet, the C library a file of its own format, which is small for numbers alone.
class CommaLocale {
 public:
  CommaLocale() {
    std::locale::global(std::locale(std::locale::classic(), new Punctuation));
    mkdir((directory_ / "comma").c_str(), 0700);
    FileContent::Write(directory_ / "comma/LC_NUMERIC", NumericFile());
    setenv("LOCPATH", directory_.Path().c_str(), 1);
    const bool set = std::setlocale(LC_NUMERIC, "comma") != nullptr;
    unsetenv("LOCPATH");
    if (!set) {
      throw std::runtime_error("the C library does not take the locale");
    }
  }
  ~CommaLocale() {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

 private:
  class Punctuation : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
    std::string do_truename() const override { return "wahr"; }
    std::string do_falsename() const override { return "falsch"; }
  };

  static void AppendWord(std::string& out, std::uint32_t word) {
    out.append(reinterpret_cast<const char*>(&word), sizeof word);
  }

  /// glibc's LC_NUMERIC: its magic number, the number of items, their offsets, the items.
  static std::string NumericFile() {
    std::string out;
    for (const std::uint32_t word : {0x20031114U, 6U, 0x20U, 0x22U, 0x24U, 0x28U, 0x2CU, 0x30U}) {
      AppendWord(out, word);
    }
    out.append(",\0.\0\3\0\0\0", 8);  // Decimal point, separator, grouping, padding.
    AppendWord(out, ',');             // Both once more, as wide characters.
    AppendWord(out, '.');
    out.append("UTF-8", 6);
    return out;
  }

  TemporaryDirectory directory_;
};

#endif  // COMMALOCALE_H_
