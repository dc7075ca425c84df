#include "VDateTime.h"

#include <algorithm>

#include "FakePlatformState.h"

unsigned long VDateTime::GetCurrentTick() {
  const FakePlatform::LockedState state;
  const auto next = static_cast<std::size_t>(state->ticksRead++);
  return state->ticks[std::min(next, state->ticks.size() - 1)];
}
