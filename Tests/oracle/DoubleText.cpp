#include "DoubleText.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace Oracle {
namespace {

/// A number as its significant digits, times ten to the power of `exponent`.
struct Decimal {
  std::string digits;
  int exponent;
};

/// The closest number of that many digits.
Decimal Rounded(double value, int digits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*e", digits - 1, value);
  Decimal decimal{{text[0]}, 0};
  const char* rest = text + 1;
  for (; *rest != 'e'; ++rest) {
    if (*rest != '.') {
      decimal.digits += *rest;
    }
  }
  decimal.exponent = std::atoi(rest + 1) - (digits - 1);
  return decimal;
}

bool ReadsBack(const Decimal& decimal, double value) {
  const std::string text = decimal.digits + "e" + std::to_string(decimal.exponent);
  return std::strtod(text.c_str(), nullptr) == value;
}

/// The fewest digits that read back as `value`. Beside a power of two the doubles above lie twice
/// as far apart as those below: there the digits that read back can be the neighbours of the
/// closest ones.
Decimal Shortest(double value) {
  for (int digits = 1;; ++digits) {
    const Decimal closest = Rounded(value, digits);
    const auto number = std::strtoll(closest.digits.c_str(), nullptr, 10);
    for (const long long candidate : {number, number + 1, number - 1}) {
      const Decimal decimal{std::to_string(candidate), closest.exponent};
      if (ReadsBack(decimal, value)) {
        return decimal;
      }
    }
  }
}

std::string WithExponent(const Decimal& decimal) {
  std::string text = decimal.digits.substr(0, 1);
  if (decimal.digits.size() > 1) {
    text += "." + decimal.digits.substr(1);
  }
  char exponent[16];
  const int power = decimal.exponent + static_cast<int>(decimal.digits.size()) - 1;
  std::snprintf(exponent, sizeof exponent, "e%c%02d", power < 0 ? '-' : '+', std::abs(power));
  return text + exponent;
}

std::string Plain(const Decimal& decimal, double value) {
  if (decimal.exponent >= 0) {
    char text[512];
    std::snprintf(text, sizeof text, "%.0f", value);  // A whole number, all its digits exact.
    return text;
  }
  std::string digits = decimal.digits;
  const auto fraction = static_cast<std::size_t>(-decimal.exponent);
  if (digits.size() <= fraction) {
    digits.insert(0, fraction + 1 - digits.size(), '0');
  }
  return digits.insert(digits.size() - fraction, ".");
}

}  // namespace

std::string DoubleText(double value) {
  if (std::isnan(value) || std::isinf(value)) {
    return "null";
  }
  if (std::signbit(value)) {
    return "-" + DoubleText(-value);
  }
  if (value == 0) {
    return "0";
  }
  const Decimal decimal = Shortest(value);
  const std::string plain = Plain(decimal, value);
  const std::string withExponent = WithExponent(decimal);
  return plain.size() <= withExponent.size() ? plain : withExponent;
}

}  // namespace Oracle
