#include "ValueType.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "JsonFault.h"
#include "Text.h"

namespace vmetrics {

std::string ShowText(std::string_view text) {
  constexpr std::size_t kColumns = 100;
  const std::string printable = Printable(text.substr(0, 4 * kColumns));
  return fmt::format("\"{}\"",
                     WidthOf(printable) <= kColumns ? printable : Fitted(printable, kColumns));
}

namespace {

template <typename Number>
std::string BytesOf(Number number) {
  std::string bytes(sizeof number, '\0');
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

template <typename Number>
Number NumberOf(std::string_view bytes) {
  Number number;
  std::memcpy(&number, bytes.data(), sizeof number);
  return number;
}

template <typename Number>
std::optional<std::string> PackNumber(const std::string& value) {
  Number number;
  const char* const end = value.data() + value.size();
  const std::from_chars_result result = std::from_chars(value.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) {
    return std::nullopt;
  }
  return BytesOf(number);
}

template <typename Number>
std::string ShowNumber(std::string_view bytes) {
  return fmt::format("{}", NumberOf<Number>(bytes));
}

std::string ShowDouble(std::string_view bytes) {
  const auto number = NumberOf<double>(bytes);
  return fmt::format("{}{}", number, std::isfinite(number) ? "" : ", rendered as null");
}

std::optional<std::string> PackBool(const std::string& value) {
  const bool isTrue = value == "true" || value == "1";
  if (!isTrue && value != "false" && value != "0") {
    return std::nullopt;
  }
  return BytesOf(isTrue);
}

std::string ShowBool(std::string_view bytes) { return bytes[0] == '\0' ? "false" : "true"; }

std::string ShowEnum(std::string_view bytes) {
  return fmt::format("{0}, rendered as the text \"{0}\"", NumberOf<std::int32_t>(bytes));
}

std::optional<std::string> PackText(const std::string& value) { return value; }

std::optional<std::string> PackJson(const std::string& value) {
  return FindJsonFault(value) ? std::nullopt : std::optional(value);
}

constexpr std::string_view kIntForm = "a whole number from -2147483648 to 2147483647";

constexpr ValueType kTypes[] = {
    {"string", 0, "a text", PackText, ShowText},
    {"int", 4, kIntForm, PackNumber<std::int32_t>, ShowNumber<std::int32_t>},
    {"uint64_t", 8, "a whole number from 0 to 18446744073709551615", PackNumber<std::uint64_t>,
     ShowNumber<std::uint64_t>},
    {"int64_t", 8, "a whole number from -9223372036854775808 to 9223372036854775807",
     PackNumber<std::int64_t>, ShowNumber<std::int64_t>},
    {"double", 8, "a number within the range of 64 bits", PackNumber<double>, ShowDouble},
    {"bool", 1, "true, false, 1 or 0", PackBool, ShowBool},
    {"enum", 4, kIntForm, PackNumber<std::int32_t>, ShowEnum},
    {"json", 0, "JSON", PackJson, ShowText},
};

}  // namespace

const ValueType* FindValueType(std::string_view name) {
  for (const ValueType& type : kTypes) {
    if (type.name == name) {
      return &type;
    }
  }
  return nullptr;
}

}  // namespace vmetrics
