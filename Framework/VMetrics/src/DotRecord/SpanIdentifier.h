/// Making of span identifiers.
#ifndef VMETRICS_DOTRECORD_SPANIDENTIFIER_H_
#define VMETRICS_DOTRECORD_SPANIDENTIFIER_H_

#include <cstdint>
#include <string>

namespace vmetrics {

/// The identifier that a generator seeded with `seed` yields: the same for the same seed.
std::string SpanIdentifierFromSeed(std::uint32_t seed);

}  // namespace vmetrics

#endif  // VMETRICS_DOTRECORD_SPANIDENTIFIER_H_
