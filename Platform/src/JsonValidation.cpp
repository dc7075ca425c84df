// Validation of foreign JSON: Boost.JSON's event parser with a handler that keeps nothing, so that
// a text is read once and nothing is allocated for it.

#include <boost/json/basic_parser_impl.hpp>
#include <boost/json/src.hpp>

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

}  // namespace

bool JsonText::IsValid(std::string_view text) {
  boost::json::parse_options options;
  options.max_depth = kDeepestNesting;
  boost::json::basic_parser<Handler> parser(options);
  boost::json::error_code error;
  const std::size_t read = parser.write_some(false, text.data(), text.size(), error);
  return !error && read == text.size();
}
