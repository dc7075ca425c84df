#include "AllocationFailure.h"

#include <cstdlib>
#include <new>

namespace {

thread_local long allocations = 0;
thread_local long held = 0;
thread_local int untilFailure = 0;  // 0: none fails.
thread_local bool fromThereOn = false;
thread_local int hits = 0;

bool FailsNow() {
  ++allocations;
  const bool fails = untilFailure == 1;
  if (untilFailure > 1 || (fails && !fromThereOn)) {
    --untilFailure;
  }
  hits += fails ? 1 : 0;
  return fails;
}

void* Allocate(std::size_t size) noexcept {
  void* const memory = FailsNow() ? nullptr : std::malloc(size == 0 ? 1 : size);
  held += memory != nullptr ? 1 : 0;
  return memory;
}

void GiveBack(void* memory) noexcept {
  held -= memory != nullptr ? 1 : 0;
  std::free(memory);
}

void* AllocateOrThrow(std::size_t size) {
  void* const memory = Allocate(size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

}  // namespace

AllocationFailure::AllocationFailure(int first, Extent extent) {
  untilFailure = first;
  fromThereOn = extent == Extent::kFromThereOn;
  hits = 0;
}

AllocationFailure::~AllocationFailure() { untilFailure = 0; }

int AllocationFailure::Hits() const { return hits; }

long AllocationFailure::Allocations() { return allocations; }

long AllocationFailure::Held() { return held; }

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { GiveBack(memory); }
void operator delete[](void* memory) noexcept { GiveBack(memory); }
void operator delete(void* memory, std::size_t) noexcept { GiveBack(memory); }
void operator delete[](void* memory, std::size_t) noexcept { GiveBack(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { GiveBack(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { GiveBack(memory); }
