/// Running out of memory at every point at which a call asks for some.
#ifndef FAILEACHALLOCATION_H_
#define FAILEACHALLOCATION_H_

#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <string>

#include "AllocationFailure.h"

/// Makes `call` once for each allocation, which then fails, until a run asks for no more memory
/// than it gets. Before each run `prepare` is called, after it `check` with the call's result, or
/// with none if it threw std::bad_alloc, and with how many allocations more are held than before
/// it. Any other exception gets through and fails the test.
///
/// At least one allocation must have failed: a call that asks for no memory tests nothing. Returns
/// how many have.
template <typename Prepare, typename Call, typename Check>
int FailEachAllocation(AllocationFailure::Extent extent, Prepare prepare, Call call, Check check) {
  int hits = 1;
  int failed = 0;
  for (int first = 1; hits > 0; ++first) {
    SCOPED_TRACE("allocation " + std::to_string(first));
    prepare();
    std::optional<std::string> result;
    const long held = AllocationFailure::Held();
    {
      const AllocationFailure failure(first, extent);
      try {
        result = call();
      } catch (const std::bad_alloc&) {
      }
      hits = failure.Hits();
    }
    const long kept = AllocationFailure::Held() - held;
    failed += hits;
    EXPECT_TRUE(hits > 0 || result.has_value());
    check(result, kept);
  }
  EXPECT_GT(failed, 0);
  return failed;
}

#endif  // FAILEACHALLOCATION_H_
