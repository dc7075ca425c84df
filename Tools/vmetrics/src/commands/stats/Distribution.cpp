#include "stats/Distribution.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <utility>

namespace vmetrics {

namespace {

constexpr std::size_t kFirstPlaces = 16;
constexpr std::size_t kFreePlaces = 256;  ///< So many a distribution has whatever the others need.
constexpr unsigned kFractionBits = 52;
constexpr unsigned kFirstDropped = kFractionBits - 9;
constexpr std::uint64_t kSign = std::uint64_t{1} << 63U;

/// The bits of a number, so changed that they ascend with it.
std::uint64_t OrderedBits(double value) {
  std::uint64_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

double NumberOf(std::uint64_t orderedBits) {
  const std::uint64_t bits = (orderedBits & kSign) != 0 ? orderedBits & ~kSign : ~orderedBits;
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

}  // namespace

void Distribution::Add(double value) {
  if (std::fabs(value) < std::numeric_limits<double>::min()) {
    value = 0;
  }
  least_ = count_ == 0 ? value : std::min(least_, value);
  greatest_ = count_ == 0 ? value : std::max(greatest_, value);
  ++count_;
  CountBucket(OrderedBits(value) >> dropped_, 1);
}

void Distribution::CountBucket(std::uint64_t bucket, std::uint64_t count) {
  if (!places_.empty()) {
    Place& place = PlaceOf(bucket);
    if (place.count > 0) {
      place.count += count;
      return;
    }
  }
  const unsigned before = dropped_;
  if (used_ >= std::min(places_.size() / 4 * 3, kMostDistinct)) {
    MakeRoom();
  }
  Place& place = PlaceOf(bucket >> (dropped_ - before));
  used_ += place.count == 0 ? 1 : 0;
  place.bucket = bucket >> (dropped_ - before);
  place.count += count;
}

/// Where the bucket is, or where it would be.
Distribution::Place& Distribution::PlaceOf(std::uint64_t bucket) {
  const std::size_t mask = places_.size() - 1;
  // Of a small whole number only the upper bits differ, of a product they do not reach the lower.
  const std::uint64_t folded = bucket ^ (bucket >> 32U);
  std::size_t at = static_cast<std::size_t>((folded * 0x9E3779B97F4A7C15U) >> 32U) & mask;
  while (places_[at].count > 0 && places_[at].bucket != bucket) {
    at = (at + 1) & mask;
  }
  return places_[at];
}

void Distribution::MakeRoom() {
  const std::size_t capacity = std::max(kFirstPlaces, 2 * places_.size());
  const bool isCoarsest = dropped_ == kFractionBits;
  if (used_ < kMostDistinct &&
      (capacity <= kFreePlaces || budget_->Take(capacity - places_.size()) || isCoarsest)) {
    MoveTo(capacity);
  } else {
    Coarsen();
  }
}

/// Counts more values together, until half of the places are free or it gets no coarser.
void Distribution::Coarsen() {
  do {
    const unsigned dropped = std::max(kFirstDropped, dropped_ + 1);
    for (Place& place : places_) {
      place.bucket >>= dropped - dropped_;
    }
    dropped_ = dropped;
    MoveTo(places_.size());
  } while (used_ > places_.size() / 2 && dropped_ < kFractionBits);
}

void Distribution::MoveTo(std::size_t capacity) {
  std::vector<Place> old(capacity);
  std::swap(old, places_);
  used_ = 0;
  for (const Place& place : old) {
    if (place.count > 0) {
      Place& moved = PlaceOf(place.bucket);
      used_ += moved.count == 0 ? 1 : 0;
      moved.bucket = place.bucket;
      moved.count += place.count;
    }
  }
}

/// The middle of the bucket, which deviates least.
double Distribution::ValueOf(std::uint64_t bucket) const {
  const std::uint64_t first = bucket << dropped_;
  const std::uint64_t last = first | ((std::uint64_t{1} << dropped_) - 1);
  if (first == last || first == kSign) {
    return NumberOf(first);
  }
  return std::clamp(NumberOf(first) / 2 + NumberOf(last) / 2, least_, greatest_);
}

std::vector<double> Distribution::Percentiles(const std::vector<unsigned>& percents) const {
  std::vector<Place> sorted;
  sorted.reserve(used_);
  std::copy_if(places_.begin(), places_.end(), std::back_inserter(sorted),
               [](const Place& place) { return place.count > 0; });
  std::sort(sorted.begin(), sorted.end(),
            [](const Place& a, const Place& b) { return a.bucket < b.bucket; });
  std::vector<double> values;
  std::uint64_t passed = 0;
  auto place = sorted.begin();
  for (const unsigned percent : percents) {
    const std::uint64_t rank = (percent * count_ + 99) / 100;
    while (place != sorted.end() && passed + place->count < rank) {
      passed += place->count;
      ++place;
    }
    values.push_back(place == sorted.end() ? 0 : ValueOf(place->bucket));
  }
  return values;
}

double Distribution::RelativeError() const {
  return dropped_ == 0 ? 0 : std::ldexp(1, static_cast<int>(dropped_) - 53);
}

}  // namespace vmetrics
