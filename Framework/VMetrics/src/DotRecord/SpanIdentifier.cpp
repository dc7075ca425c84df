#include "DotRecord/SpanIdentifier.h"

#include <limits>
#include <random>

#include "VMetrics.h"

namespace vmetrics {
namespace {

constexpr int kLength = 36;

/// Writes the low `digits` hexadecimal digits of `value`, leading zeros included; returns the end.
char* WriteHex(char* out, std::uint64_t value, int digits) {
  for (int i = digits - 1; i >= 0; --i) {
    out[i] = "0123456789abcdef"[value & 0xF];
    value >>= 4;
  }
  return out + digits;
}

}  // namespace

std::string SpanIdentifierFromSeed(std::uint32_t seed) {
  std::mt19937 generator(seed);
  std::uniform_int_distribution<unsigned int> distribution(
      0, std::numeric_limits<unsigned int>::max());
  std::uint64_t draws[5];
  for (std::uint64_t& draw : draws) {
    draw = distribution(generator);
  }
  const std::uint64_t last = draws[3] << 32 | draws[4];
  std::string identifier(kLength, '-');
  char* out = &identifier[0];
  out = WriteHex(out, draws[0], 8) + 1;
  // Of the second and the third draw only the upper half counts.
  out = WriteHex(out, draws[1] >> 16, 4) + 1;
  out = WriteHex(out, draws[2] >> 16, 4) + 1;
  out = WriteHex(out, last >> 48, 4) + 1;
  WriteHex(out, last, 12);
  return identifier;
}

}  // namespace vmetrics

std::string VMetrics::GenerateUuid() {
  // Device and generator are made anew for each identifier: nothing is shared between threads, and
  // a forked child does not repeat its parent's identifiers.
  std::random_device device("default");
  return vmetrics::SpanIdentifierFromSeed(device());
}
