#include "BoostValidation.h"

#include <boost/json/basic_parser_impl.hpp>
#include <boost/json/src.hpp>

namespace {

using boost::json::error_code;
using boost::json::string_view;

/// Keeps nothing of what it is told.
struct Nothing {
  static constexpr std::size_t max_object_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_array_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_key_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_string_size = static_cast<std::size_t>(-1);
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

bool BoostFindsValid(std::string_view json) {
  boost::json::basic_parser<Nothing> parser{boost::json::parse_options()};
  error_code error;
  const std::size_t read = parser.write_some(false, json.data(), json.size(), error);
  return !error && read == json.size();
}
