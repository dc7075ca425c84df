/// Validation by Boost.JSON as hand-written code would call it.
#ifndef BENCHMARKS_BOOSTVALIDATION_H_
#define BENCHMARKS_BOOSTVALIDATION_H_

#include <string_view>

bool BoostFindsValid(std::string_view json);

#endif  // BENCHMARKS_BOOSTVALIDATION_H_
