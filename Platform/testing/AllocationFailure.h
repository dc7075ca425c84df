/// Memory that runs out when a test wants it to. Linking this replaces the program's operator new.
#ifndef ALLOCATIONFAILURE_H_
#define ALLOCATIONFAILURE_H_

/// While an object lives, this thread's allocations fail as told: number `first` (1 is the next
/// one), or every one from there on.
class AllocationFailure {
 public:
  enum class Extent { kOnce, kFromThereOn };

  explicit AllocationFailure(int first, Extent extent = Extent::kOnce);
  ~AllocationFailure();
  AllocationFailure(const AllocationFailure&) = delete;
  AllocationFailure& operator=(const AllocationFailure&) = delete;

  /// How many allocations have failed so far.
  int Hits() const;

  /// How many allocations this thread has made in its life.
  static long Allocations();

  /// How many of its allocations this thread holds: those that it has not given back.
  static long Held();
};

#endif  // ALLOCATIONFAILURE_H_
