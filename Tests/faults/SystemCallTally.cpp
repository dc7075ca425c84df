// Tells at the end what the sweeps came to. To be seen where one process runs all of them, as in
// bin/soak: ctest starts one for each.

#include <gtest/gtest.h>

#include <cstdio>

#include "FailEachSystemCall.h"

namespace {

class Tally : public testing::Environment {
  void TearDown() override {
    std::printf("system calls made to fail: %ld in %ld runs\n", faultTally.failed, faultTally.runs);
  }
};

testing::Environment* const tally = testing::AddGlobalTestEnvironment(new Tally);

}  // namespace
