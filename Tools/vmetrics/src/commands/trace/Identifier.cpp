#include "trace/Identifier.h"

#include <cstring>

namespace vmetrics {

namespace {

constexpr std::string_view kForm = "00000000-0000-0000-0000-000000000000";
constexpr std::string_view kDigits = "0123456789abcdef";

constexpr std::uint8_t kNoDigit = 0xF0;

/// The value of each character; kNoDigit for what is no lower-case hexadecimal digit.
constexpr std::array<std::uint8_t, 256> MakeValues() {
  std::array<std::uint8_t, 256> values{};
  for (std::uint8_t& value : values) {
    value = kNoDigit;
  }
  for (std::size_t i = 0; i < kDigits.size(); ++i) {
    values[static_cast<unsigned char>(kDigits[i])] = static_cast<std::uint8_t>(i);
  }
  return values;
}

constexpr std::array<std::uint8_t, 256> kValues = MakeValues();

bool TakeDigits(std::string_view text, std::array<std::uint8_t, 16>& bytes) {
  if (text.size() != kForm.size()) {
    return false;
  }
  // Random digits are taken without a branch for each, which no processor could foresee.
  unsigned int wrong = 0;
  std::size_t at = 0;
  for (std::uint8_t& byte : bytes) {
    if (kForm[at] == '-') {
      wrong |= text[at] != '-' ? kNoDigit : 0U;
      ++at;
    }
    const unsigned int high = kValues[static_cast<unsigned char>(text[at])];
    const unsigned int low = kValues[static_cast<unsigned char>(text[at + 1])];
    wrong |= high | low;
    byte = static_cast<std::uint8_t>(high << 4U | low);
    at += 2;
  }
  return (wrong & kNoDigit) == 0;
}

}  // namespace

Identifier IdentifierOf(std::string_view text, TextPool& pool) {
  Identifier identifier;
  if (text.empty()) {
    return identifier;
  }
  if (TakeDigits(text, identifier.bytes)) {
    identifier.kind = Identifier::Kind::kDigits;
    return identifier;
  }
  identifier.bytes = {};
  identifier.kind = Identifier::Kind::kText;
  const std::uint32_t number = pool.Add(text);
  std::memcpy(identifier.bytes.data(), &number, sizeof number);
  return identifier;
}

std::string TextOf(const Identifier& identifier, const TextPool& pool) {
  if (identifier.kind == Identifier::Kind::kNone) {
    return {};
  }
  if (identifier.kind == Identifier::Kind::kText) {
    std::uint32_t number = 0;
    std::memcpy(&number, identifier.bytes.data(), sizeof number);
    return std::string(pool[number]);
  }
  std::string text(kForm);
  std::size_t at = 0;
  for (const std::uint8_t byte : identifier.bytes) {
    at += kForm[at] == '-' ? 1 : 0;
    text[at++] = kDigits[byte >> 4U];
    text[at++] = kDigits[byte & 15U];
  }
  return text;
}

}  // namespace vmetrics

std::size_t std::hash<vmetrics::Identifier>::operator()(
    const vmetrics::Identifier& identifier) const noexcept {
  std::uint64_t halves[2];
  std::memcpy(halves, identifier.bytes.data(), sizeof halves);
  // Odd numbers with as many ones as zeros spread whatever differs over the upper bits.
  const std::uint64_t mixed = (halves[0] ^ halves[1] * 0x9E3779B97F4A7C15U) * 0xC2B2AE3D27D4EB4FU;
  return mixed ^ mixed >> 32U;
}
