#include "AllocationRecord.h"

#include <cstdint>
#include <cstdlib>
#include <new>
#include <numeric>

namespace {

/// A block taken, or given back where the size is `kGivenBack`.
struct Use {
  std::uintptr_t block;
  std::size_t size;
};

constexpr std::size_t kGivenBack = SIZE_MAX;
constexpr std::size_t kMostUses = 100'000;

// An array, as a container would use the heap itself.
Use uses[kMostUses];
std::size_t count = 0;

void Record(void* block, std::size_t size) {
  if (count == kMostUses) {
    std::abort();  // A record with holes would prove nothing.
  }
  uses[count++] = {reinterpret_cast<std::uintptr_t>(block), size};
}

void* Take(std::size_t size) noexcept {
  void* const block = std::malloc(size != 0 ? size : 1);
  if (block != nullptr) {
    Record(block, size);
  }
  return block;
}

void* TakeOrThrow(std::size_t size) {
  void* const block = Take(size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  return block;
}

void GiveBack(void* block) noexcept {
  if (block != nullptr) {
    Record(block, kGivenBack);
  }
  std::free(block);
}

bool Holds(const Use& use, const void* address) {
  return use.size != kGivenBack && reinterpret_cast<std::uintptr_t>(address) - use.block < use.size;
}

}  // namespace

void AllocationRecord::Begin() { count = 0; }

AllocationRecord::Moment AllocationRecord::Now() { return count; }

AllocationRecord::Moment AllocationRecord::TakenAt(const void* address) {
  for (std::size_t i = count; i-- > 0;) {
    if (Holds(uses[i], address)) {
      return i;
    }
  }
  return count;
}

AllocationRecord::Moment AllocationRecord::GivenBackAt(Moment taken) {
  for (std::size_t i = taken; i < count; ++i) {
    if (uses[i].size == kGivenBack && uses[i].block == uses[taken].block) {
      return i;
    }
  }
  return count;
}

long AllocationRecord::Balance() {
  return std::accumulate(uses, uses + count, 0L, [](long balance, const Use& use) {
    return balance + (use.size == kGivenBack ? -1 : 1);
  });
}

// All forms, so that none goes past the record and a sanitizer finds them to fit each other.
void* operator new(std::size_t size) { return TakeOrThrow(size); }
void* operator new[](std::size_t size) { return TakeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Take(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Take(size); }
void operator delete(void* block) noexcept { GiveBack(block); }
void operator delete[](void* block) noexcept { GiveBack(block); }
void operator delete(void* block, std::size_t) noexcept { GiveBack(block); }
void operator delete[](void* block, std::size_t) noexcept { GiveBack(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { GiveBack(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { GiveBack(block); }
