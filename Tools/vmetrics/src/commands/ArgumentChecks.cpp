#include "ArgumentChecks.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace vmetrics {

namespace {

/// The number that the whole text is.
template <typename Number>
std::optional<Number> NumberOf(const std::string& text) {
  Number number;
  const char* const end = text.data() + text.size();
  const std::from_chars_result result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace

CLI::Validator OneOf(const std::vector<std::string>& names) {
  const auto refuse = [names](const std::string& text) {
    const bool isOne = std::find(names.begin(), names.end(), text) != names.end();
    return isOne ? "" : fmt::format("\"{}\" is none of {}", text, fmt::join(names, ", "));
  };
  return {refuse, ""};
}

CLI::Validator WholeNumber(std::uint64_t least, std::uint64_t greatest) {
  const auto refuse = [least, greatest](const std::string& text) {
    const auto number = NumberOf<std::uint64_t>(text);
    return number && *number >= least && *number <= greatest
               ? ""
               : fmt::format("\"{}\" is no whole number from {} to {}", text, least, greatest);
  };
  return {refuse, ""};
}

CLI::Validator FiniteNumber() {
  const auto refuse = [](const std::string& text) {
    const auto number = NumberOf<double>(text);
    return number && std::isfinite(*number) && *number >= 0
               ? ""
               : fmt::format("\"{}\" is no number from 0 on", text);
  };
  return {refuse, ""};
}

}  // namespace vmetrics
