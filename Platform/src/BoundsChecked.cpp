#include "BoundsChecked.h"

#include <cerrno>
#include <cstdint>
#include <cstring>

namespace {

/// No object is larger than half the address space; a greater size is a negative number gone wrong.
constexpr std::size_t kGreatestSize = SIZE_MAX / 2;

bool Overlap(const void* first, const void* second, std::size_t count) {
  const auto a = reinterpret_cast<std::uintptr_t>(first);
  const auto b = reinterpret_cast<std::uintptr_t>(second);
  return (a < b ? b - a : a - b) < count;
}

}  // namespace

int memcpy_s(void* destination, std::size_t destinationSize, const void* source,
             std::size_t count) {
  if (destination == nullptr || destinationSize > kGreatestSize) {
    return EINVAL;
  }
  if (source == nullptr || count > destinationSize || Overlap(destination, source, count)) {
    std::memset(destination, 0, destinationSize);
    return count > destinationSize ? ERANGE : EINVAL;
  }
  std::memcpy(destination, source, count);
  return 0;
}

int memset_s(void* destination, std::size_t destinationSize, int value, std::size_t count) {
  if (destination == nullptr || destinationSize > kGreatestSize || count > kGreatestSize) {
    return EINVAL;
  }
  std::memset(destination, value, count < destinationSize ? count : destinationSize);
  return count > destinationSize ? ERANGE : 0;
}

char* strtok_s(char* string, const char* delimiters, char** context) {
  if (delimiters == nullptr || context == nullptr || (string == nullptr && *context == nullptr)) {
    return nullptr;
  }
  return strtok_r(string, delimiters, context);
}
