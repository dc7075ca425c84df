#include "SpanId.h"

#include <fmt/format.h>

#include <cstddef>

namespace vmetrics {

namespace {

constexpr std::size_t kSize = 36;
constexpr std::uint64_t kNoDigit = 16;

bool IsGap(std::size_t at) { return at == 8 || at == 13 || at == 18 || at == 23; }

/// The value of a lower-case hexadecimal digit.
std::uint64_t DigitOf(char c) {
  if (c >= '0' && c <= '9') {
    return static_cast<std::uint64_t>(c - '0');
  }
  return c >= 'a' && c <= 'f' ? static_cast<std::uint64_t>(c - 'a') + 10 : kNoDigit;
}

}  // namespace

std::optional<SpanId> ParseSpanId(std::string_view text) {
  if (text.size() != kSize) {
    return std::nullopt;
  }
  SpanId id{0, 0};
  for (std::size_t at = 0; at < kSize; ++at) {
    if (IsGap(at)) {
      if (text[at] != '-') {
        return std::nullopt;
      }
      continue;
    }
    const std::uint64_t digit = DigitOf(text[at]);
    if (digit == kNoDigit) {
      return std::nullopt;
    }
    std::uint64_t& half = at < kSize / 2 ? id.high : id.low;
    half = (half << 4U) | digit;
  }
  return id;
}

std::string ToText(const SpanId& id) {
  return fmt::format("{:08x}-{:04x}-{:04x}-{:04x}-{:012x}", id.high >> 32U,
                     (id.high >> 16U) & 0xFFFFU, id.high & 0xFFFFU, id.low >> 48U,
                     id.low & 0xFFFFFFFFFFFFU);
}

}  // namespace vmetrics
