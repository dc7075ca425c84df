#include "BoundsChecked.h"

#include <cerrno>
#include <cstring>

int memcpy_s(void* destination, std::size_t destinationSize, const void* source,
             std::size_t count) {
  if (destination == nullptr || source == nullptr || count > destinationSize) {
    return EINVAL;
  }
  std::memmove(destination, source, count);  // Which does not mind if the two overlap.
  return 0;
}

int memset_s(void* destination, std::size_t destinationSize, int value, std::size_t count) {
  if (destination == nullptr || count > destinationSize) {
    return EINVAL;
  }
  std::memset(destination, value, count);
  return 0;
}

char* strtok_s(char* string, const char* delimiters, char** context) {
  return strtok_r(string, delimiters, context);
}
