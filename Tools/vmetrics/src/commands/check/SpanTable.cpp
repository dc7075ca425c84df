#include "SpanTable.h"

#include <utility>

namespace vmetrics {

const Place* SpanTable::Find(const SpanId& id) const {
  const Slot& slot = slots_[SlotFor(id, slots_)];
  return slot.place.line == 0 ? nullptr : &slot.place;
}

void SpanTable::Add(const SpanId& id, const Place& place) {
  if (count_ >= slots_.size() / 4 * 3) {
    Grow();
  }
  slots_[SlotFor(id, slots_)] = {id, place};
  ++count_;
}

/// The slot that the identifier has, or may have.
std::size_t SpanTable::SlotFor(const SpanId& id, const std::vector<Slot>& slots) {
  // The library's identifiers are random; others are spread by odd constants.
  const std::uint64_t mixed = (id.high ^ (id.low * 0x9E3779B97F4A7C15U)) * 0xD6E8FEB86659FD93U;
  std::size_t at = (mixed >> 32U) & (slots.size() - 1);
  while (slots[at].place.line != 0 && !(slots[at].id == id)) {
    at = (at + 1) & (slots.size() - 1);
  }
  return at;
}

void SpanTable::Grow() {
  std::vector<Slot> larger(slots_.size() * 2);
  for (const Slot& slot : slots_) {
    if (slot.place.line != 0) {
      larger[SlotFor(slot.id, larger)] = slot;
    }
  }
  slots_ = std::move(larger);
}

}  // namespace vmetrics
