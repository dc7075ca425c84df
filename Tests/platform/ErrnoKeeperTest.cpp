#include <gtest/gtest.h>

#include "ErrnoKeeper.h"

namespace {

TEST(ErrnoKeeperTest, PutsTheHostsErrnoBack) {
  errno = ENOENT;
  {
    const ErrnoKeeper keeper;
    errno = EINTR;
  }
  EXPECT_EQ(errno, ENOENT);
}

}  // namespace
