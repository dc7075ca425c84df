#include "VDateTime.h"

#include <chrono>

unsigned long VDateTime::GetCurrentTick() {
  using namespace std::chrono;
  const auto sinceEpoch = system_clock::now().time_since_epoch();
  return static_cast<unsigned long>(duration_cast<milliseconds>(sinceEpoch).count());
}
