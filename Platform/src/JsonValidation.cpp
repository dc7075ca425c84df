// Validation of foreign JSON: Boost.JSON's event parser with a handler that keeps nothing, so that
// a usual text is read once and nothing is allocated for it.

#include <boost/json/basic_parser_impl.hpp>
#include <boost/json/src.hpp>
#include <string>

#include "JsonText.h"

namespace {

constexpr std::size_t kDeepestNesting = 128;

/// Agrees with everything. The parser wants its events under these names.
struct Handler {
  using string_view = boost::json::string_view;
  using error_code = boost::json::error_code;

  // NOLINTBEGIN(readability-identifier-naming)
  static constexpr std::size_t max_object_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_array_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_key_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_string_size = static_cast<std::size_t>(-1);
  // NOLINTEND(readability-identifier-naming)

  bool on_document_begin(error_code&) { return true; }
  bool on_document_end(error_code&) { return true; }
  bool on_object_begin(error_code&) { return true; }
  bool on_object_end(std::size_t, error_code&) { return true; }
  bool on_array_begin(error_code&) { return true; }
  bool on_array_end(std::size_t, error_code&) { return true; }
  bool on_key_part(string_view, std::size_t, error_code&) { return true; }
  bool on_key(string_view, std::size_t, error_code&) { return true; }
  bool on_string_part(string_view, std::size_t, error_code&) { return true; }
  bool on_string(string_view, std::size_t, error_code&) { return true; }
  bool on_number_part(string_view, error_code&) { return true; }
  bool on_int64(std::int64_t, string_view, error_code&) { return true; }
  bool on_uint64(std::uint64_t, string_view, error_code&) { return true; }
  bool on_double(double, string_view, error_code&) { return true; }
  bool on_bool(bool, error_code&) { return true; }
  bool on_null(error_code&) { return true; }
  bool on_comment_part(string_view, error_code&) { return true; }
  bool on_comment(string_view, error_code&) { return true; }
};

/// Null when all of `text` is one JSON value.
boost::json::error_code Validate(std::string_view text) {
  boost::json::parse_options options;
  options.max_depth = kDeepestNesting;
  boost::json::basic_parser<Handler> parser(options);
  boost::json::error_code error;
  const std::size_t read = parser.write_some(false, text.data(), text.size(), error);
  if (!error && read != text.size()) {
    error = boost::json::error::extra_data;
  }
  return error;
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

/// The text with no exponent longer than nine digits: valid exactly when `text` is.
std::string WithShortExponents(std::string_view text) {
  constexpr int kMostDigits = 9;
  std::string shortened;
  bool inString = false;
  bool inExponent = false;
  int digits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (inString && character == '\\' && i + 1 < text.size()) {
      shortened.push_back(text[i++]);
    } else if (character == '"') {
      inString = !inString;
    } else if (!inString && (character == 'e' || character == 'E') && i > 0) {
      inExponent = IsDigit(text[i - 1]);
      digits = 0;
    } else if (IsDigit(character) && inExponent && ++digits > kMostDigits) {
      continue;
    } else if (!IsDigit(character) && character != '+' && character != '-') {
      inExponent = false;
    }
    shortened.push_back(text[i]);
  }
  return shortened;
}

}  // namespace

bool JsonText::IsValid(std::string_view text) {
  const boost::json::error_code error = Validate(text);
  // JSON sets no limit to an exponent; the parser does, as it works the number out.
  return error == boost::json::error::exponent_overflow ? !Validate(WithShortExponents(text))
                                                        : !error;
}
