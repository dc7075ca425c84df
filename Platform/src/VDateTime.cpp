#include "VDateTime.h"

#include <chrono>

unsigned long VDateTime::GetCurrentTick() {
  using std::chrono::duration_cast;
  using std::chrono::milliseconds;
  const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<unsigned long>(duration_cast<milliseconds>(sinceEpoch).count());
}
