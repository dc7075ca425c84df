/// Finds numbers by what they stand for: a hash table that leaves the things themselves to its
/// owner and takes 11 to 21 bytes for each.
#ifndef VMETRICS_TOOL_HASHINDEX_H_
#define VMETRICS_TOOL_HASHINDEX_H_

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vmetrics {

class HashIndex {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  /// The number that was added with this hash and for which `isIt(number)` holds; kNone where there
  /// is none.
  template <typename IsIt>
  std::uint32_t Find(std::uint64_t hash, IsIt isIt) const {
    const auto shortHash = static_cast<std::uint32_t>(hash);
    if (slots_.empty()) {
      return kNone;
    }
    std::size_t at = shortHash & (slots_.size() - 1);
    while (slots_[at].number != kNone &&
           !(slots_[at].hash == shortHash && isIt(slots_[at].number))) {
      at = (at + 1) & (slots_.size() - 1);
    }
    return slots_[at].number;
  }

  /// Adds a number that is not kNone.
  void Add(std::uint64_t hash, std::uint32_t number) {
    if ((size_ + 1) * 4 > slots_.size() * 3) {
      Grow();
    }
    ++size_;
    Put({static_cast<std::uint32_t>(hash), number});
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t number = kNone;
  };

  void Put(Slot slot) {
    std::size_t at = slot.hash & (slots_.size() - 1);
    while (slots_[at].number != kNone) {
      at = (at + 1) & (slots_.size() - 1);
    }
    slots_[at] = slot;
  }

  void Grow() {
    std::vector<Slot> slots(slots_.empty() ? 64 : slots_.size() * 2);
    slots_.swap(slots);
    for (const Slot& slot : slots) {
      if (slot.number != kNone) {
        Put(slot);
      }
    }
  }

  std::vector<Slot> slots_;  ///< As many as a power of two, one in four of them free at least.
  std::size_t size_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_HASHINDEX_H_
