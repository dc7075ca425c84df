// The real functions under other names, and fakes that refuse when told to.

#include "BoundsChecked.h"

#include <cstdio>
#include <cstdlib>

#include "FakePlatformState.h"

#define memcpy_s RealMemcpyS
#define memset_s RealMemsetS
#define strtok_s RealStrtokS
extern "C" int RealMemcpyS(void* destination, std::size_t destinationSize, const void* source,
                           std::size_t count);
extern "C" int RealMemsetS(void* destination, std::size_t destinationSize, int value,
                           std::size_t count);
extern "C" char* RealStrtokS(char* string, const char* delimiters, char** context);
#include "../src/BoundsChecked.cpp"
#undef memcpy_s
#undef memset_s
#undef strtok_s

int memcpy_s(void* destination, std::size_t destinationSize, const void* source,
             std::size_t count) {
  return FakePlatform::IsNext(FakePlatform::LockedState()->copiesUntilFailure)
             ? EINVAL
             : RealMemcpyS(destination, destinationSize, source, count);
}

int memset_s(void* destination, std::size_t destinationSize, int value, std::size_t count) {
  return FakePlatform::IsNext(FakePlatform::LockedState()->clearsUntilFailure)
             ? EINVAL
             : RealMemsetS(destination, destinationSize, value, count);
}

/// Of the platforms that there may be the least patient one: it forgets a text in which it has
/// found nothing more, and cannot be asked again.
char* strtok_s(char* string, const char* delimiters, char** context) {
  if (string == nullptr && *context == nullptr) {
    std::fputs("strtok_s is asked for more of no text\n", stderr);
    std::abort();
  }
  char* const token = RealStrtokS(string, delimiters, context);
  if (token == nullptr) {
    *context = nullptr;
  }
  return token;
}
