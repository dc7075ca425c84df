/// Which span stands where: 24 bytes an entry, as a log may have millions.
#ifndef VMETRICS_TOOL_SPANTABLE_H_
#define VMETRICS_TOOL_SPANTABLE_H_

#include <cstddef>
#include <vector>

#include "Finding.h"
#include "SpanId.h"

namespace vmetrics {

class SpanTable {
 public:
  /// Where the span stands; null where it is unknown. Good until the next Add.
  const Place* Find(const SpanId& id) const;

  /// Adds a span that is not there yet.
  void Add(const SpanId& id, const Place& place);

 private:
  struct Slot {
    SpanId id;
    Place place;  ///< Line 0 where the slot is free.
  };

  static std::size_t SlotFor(const SpanId& id, const std::vector<Slot>& slots);
  void Grow();

  std::vector<Slot> slots_ = std::vector<Slot>(1024);  ///< As many as a power of two.
  std::size_t count_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_SPANTABLE_H_
