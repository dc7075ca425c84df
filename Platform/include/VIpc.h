/// \file
/// The platform's IPC message, as far as metrics need it.
///
/// A message is a 24-byte header followed by whatever it carries. The words that metrics do not
/// read belong to the IPC library, as does the way in which a message's total size is known.
#ifndef VIPC_H_
#define VIPC_H_

#include <cstddef>
#include <cstdint>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"  // A flexible array member, in every C++ dialect.
#pragma pack(push, 1)

/// One IPC message in memory, packed, in host byte order. May stand at any address.
struct VMessage {
  std::uint32_t reserved0;   ///< Offset 0; the IPC library's own.
  std::int32_t srcModuleId;  ///< Offset 4; the module that sent the message.
  std::uint32_t reserved8;   ///< Offset 8; the IPC library's own.
  std::int32_t dstModuleId;  ///< Offset 12; the module it is meant for.
  std::int32_t msgType;      ///< Offset 16; what kind of message it is.
  std::uint32_t reserved20;  ///< Offset 20; the IPC library's own.
  char body[];               ///< Offset 24; what the message carries, up to its end.
};

#pragma pack(pop)
#pragma GCC diagnostic pop

static_assert(sizeof(VMessage) == 24, "a message carries its body from byte 24 on");
static_assert(offsetof(VMessage, srcModuleId) == 4, "the header is a wire format");
static_assert(offsetof(VMessage, dstModuleId) == 12, "the header is a wire format");
static_assert(offsetof(VMessage, msgType) == 16, "the header is a wire format");

#endif  // VIPC_H_
