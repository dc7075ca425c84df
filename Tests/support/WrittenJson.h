/// What the writers of JSON texts write, in a buffer of exactly the room that they ask for.
#ifndef WRITTENJSON_H_
#define WRITTENJSON_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "JsonText.h"

/// What `write` puts into a buffer of `room` bytes, which lies where overruns are noticed; nothing
/// when it gives up.
template <typename Writer>
std::optional<std::string> Written(std::size_t room, Writer write) {
  const std::unique_ptr<char[]> buffer(new char[room]);
  const char* const end = write(buffer.get());
  if (end == nullptr) {
    return std::nullopt;
  }
  const auto size = static_cast<std::size_t>(end - buffer.get());
  EXPECT_LE(size, room);
  return std::string(buffer.get(), size);
}

/// The JSON value `text`, compacted; nothing when it is refused.
inline std::optional<std::string> Compacted(const std::string& text) {
  return Written(JsonText::CompactedRoom(text.size()),
                 [&](char* out) { return JsonText::WriteCompacted(out, text); });
}

#endif  // WRITTENJSON_H_
