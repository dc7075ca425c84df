/// The form of a step's identifier.
#ifndef SPANIDENTIFIERFORM_H_
#define SPANIDENTIFIERFORM_H_

#include <string_view>

/// Whether `text` is lower-case hexadecimal digits in groups of 8-4-4-4-12.
inline bool IsSpanIdentifier(std::string_view text) {
  constexpr std::string_view kForm = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
  bool matches = text.size() == kForm.size();
  for (std::size_t i = 0; matches && i < text.size(); ++i) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    matches = kForm[i] == '-' ? text[i] == '-' : kDigits.find(text[i]) != std::string_view::npos;
  }
  return matches;
}

#endif  // SPANIDENTIFIERFORM_H_
