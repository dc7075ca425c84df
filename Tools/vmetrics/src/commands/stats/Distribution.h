/// How often which values occur, in bounded memory.
#ifndef VMETRICS_TOOL_STATS_DISTRIBUTION_H_
#define VMETRICS_TOOL_STATS_DISTRIBUTION_H_

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vmetrics {

/// Memory that several distributions share, in places for a value and its count.
class DistributionBudget {
 public:
  explicit DistributionBudget(std::size_t places) : left_(places) {}

  /// Takes that many; false, and takes none, where there are less.
  bool Take(std::size_t places) {
    const bool isEnough = places <= left_;
    left_ -= isEnough ? places : 0;
    return isEnough;
  }

 private:
  std::size_t left_;
};

/// Counts each distinct value as long as they are few. Once there are more than kMostDistinct, or
/// the shared memory is used up, neighbouring values are counted together, in buckets of which
/// every power of two has equally many: 512 at first, half as many each time that they become too
/// many again. What is said of the values then deviates by RelativeError() at most.
///
/// Numbers that are nearer to 0 than the least normal one count as 0.
class Distribution {
 public:
  static constexpr std::size_t kMostDistinct = 65536;

  explicit Distribution(DistributionBudget& budget) : budget_(&budget) {}

  /// Counts a finite value.
  void Add(double value);

  std::uint64_t Count() const { return count_; }

  // Of no values, 0.
  double Least() const { return least_; }
  double Greatest() const { return greatest_; }

  /// By nearest rank: for each of `percents`, which are 1 to 100 and ascend, the least value that
  /// is not exceeded by at least so many of a hundred values.
  std::vector<double> Percentiles(const std::vector<unsigned>& percents) const;

  /// 0 while every value is counted by itself.
  double RelativeError() const;

 private:
  /// A bucket: the leading bits, all but `dropped_`, that its values have in common.
  struct Place {
    std::uint64_t bucket = 0;
    std::uint64_t count = 0;  ///< 0 where the place is free.
  };

  void CountBucket(std::uint64_t bucket, std::uint64_t count);
  Place& PlaceOf(std::uint64_t bucket);
  void MakeRoom();
  void Coarsen();
  void MoveTo(std::size_t capacity);
  double ValueOf(std::uint64_t bucket) const;

  DistributionBudget* budget_;
  std::vector<Place> places_;  ///< A hash table; its size is 0 or a power of two.
  std::size_t used_ = 0;
  unsigned dropped_ = 0;
  std::uint64_t count_ = 0;
  double least_ = 0;
  double greatest_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_STATS_DISTRIBUTION_H_
