#include "Utf8.h"

namespace {

/// What may follow a lead byte: the range of the second byte, and how many bytes there are in all.
/// Later bytes are always 0x80 to 0xBF.
struct Lead {
  std::size_t length;
  unsigned char secondMin;
  unsigned char secondMax;
};

/// The narrowed ranges keep out overlong forms, surrogates and what lies beyond U+10FFFF.
Lead Classify(unsigned char byte) {
  if (byte < 0x80) return {1, 0, 0};
  if (byte < 0xC2) return {0, 0, 0};
  if (byte < 0xE0) return {2, 0x80, 0xBF};
  if (byte == 0xE0) return {3, 0xA0, 0xBF};
  if (byte == 0xED) return {3, 0x80, 0x9F};
  if (byte < 0xF0) return {3, 0x80, 0xBF};
  if (byte == 0xF0) return {4, 0x90, 0xBF};
  if (byte < 0xF4) return {4, 0x80, 0xBF};
  if (byte == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

}  // namespace

Utf8::Sequence Utf8::First(std::string_view text) {
  const Lead lead = Classify(static_cast<unsigned char>(text[0]));
  if (lead.length == 0) {
    return {1, false};
  }
  unsigned char least = lead.secondMin;
  unsigned char greatest = lead.secondMax;
  for (std::size_t i = 1; i < lead.length; ++i) {
    if (i == text.size()) {
      return {i, false};
    }
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < least || byte > greatest) {
      return {i, false};
    }
    least = 0x80;
    greatest = 0xBF;
  }
  return {lead.length, true};
}
