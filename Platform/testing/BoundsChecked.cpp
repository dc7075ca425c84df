// The real functions under other names, and fakes that refuse when told to.

#include "BoundsChecked.h"

#include "FakePlatformState.h"

#define memcpy_s RealMemcpyS
#define memset_s RealMemsetS
extern "C" int RealMemcpyS(void* destination, std::size_t destinationSize, const void* source,
                           std::size_t count);
extern "C" int RealMemsetS(void* destination, std::size_t destinationSize, int value,
                           std::size_t count);
#include "../src/BoundsChecked.cpp"
#undef memcpy_s
#undef memset_s

int memcpy_s(void* destination, std::size_t destinationSize, const void* source,
             std::size_t count) {
  return FakePlatform::IsNext(FakePlatform::TheState().copiesUntilFailure)
             ? EINVAL
             : RealMemcpyS(destination, destinationSize, source, count);
}

int memset_s(void* destination, std::size_t destinationSize, int value, std::size_t count) {
  return FakePlatform::IsNext(FakePlatform::TheState().clearsUntilFailure)
             ? EINVAL
             : RealMemsetS(destination, destinationSize, value, count);
}
