#include <gtest/gtest.h>

#include "Terminal.h"

namespace vmetrics {
namespace {

TEST(IsUtf8LocaleTest, HoweverItIsWritten) {
  for (const char* name : {"C.UTF-8", "C.utf8", "de_DE.UTF8", "en_US.utf-8", "de_DE.UTF-8@euro"}) {
    EXPECT_TRUE(IsUtf8Locale(name)) << name;
  }
}

TEST(IsUtf8LocaleTest, OthersAreNone) {
  for (const char* name :
       {"C", "POSIX", "", ".", "de_DE", "de_DE.ISO-8859-1", "utf8", "C.UTF-80", "de_DE@UTF-8"}) {
    EXPECT_FALSE(IsUtf8Locale(name)) << name;
  }
}

}  // namespace
}  // namespace vmetrics
