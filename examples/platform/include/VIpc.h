/// The platform's IPC message. A product has one already; the framework reads the three words by
/// their names, and takes the record at `body`.
#ifndef EXAMPLE_VIPC_H_
#define EXAMPLE_VIPC_H_

#include <cstdint>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"  // The array without a length.

/// Packed: a message may stand at any address.
struct __attribute__((packed)) VMessage {
  std::uint32_t length;
  std::int32_t srcModuleId;
  std::uint32_t sequence;
  std::int32_t dstModuleId;
  std::int32_t msgType;
  std::uint32_t flags;
  char body[];  ///< From byte 24 on.
};

#pragma GCC diagnostic pop

#endif  // EXAMPLE_VIPC_H_
