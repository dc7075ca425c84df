// The time from dlopen to its return, in nanoseconds, in a process that has the embedded platform
// and not yet the library.
//
// usage: load_time LIBRARY

#include <dlfcn.h>

#include <chrono>
#include <cstdio>

#include "VLogger.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: load_time LIBRARY\n");
    return 2;
  }
  VLogger::GetInstance();  // Otherwise a linker might leave the platform out.
  const auto start = std::chrono::steady_clock::now();
  void* const library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  const auto end = std::chrono::steady_clock::now();
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  std::printf("%lld\n", static_cast<long long>(std::chrono::nanoseconds(end - start).count()));
  return 0;
}
