// The oracle leaves out of its comparisons what other parsers do not read, and no more than that.

#include <gtest/gtest.h>

#include <string>

#include "IndependentJson.h"

namespace {

using IndependentJson::MayHaveLargeNumber;

TEST(IndependentJsonTest, FindsNumbersThatNoDoubleHolds) {
  EXPECT_TRUE(MayHaveLargeNumber("1e400"));
  EXPECT_TRUE(MayHaveLargeNumber("[1E-400]"));
  EXPECT_TRUE(MayHaveLargeNumber("[1e99,1e+400]"));
  EXPECT_TRUE(MayHaveLargeNumber(std::string(400, '9')));
  EXPECT_TRUE(MayHaveLargeNumber(R"({"\"":1e400})"));
  EXPECT_TRUE(MayHaveLargeNumber(R"(["\\",1e400])"));
}

TEST(IndependentJsonTest, FindsNoneInOthers) {
  EXPECT_FALSE(MayHaveLargeNumber(""));
  EXPECT_FALSE(MayHaveLargeNumber("1e99"));
  EXPECT_FALSE(MayHaveLargeNumber("[-1.5,123456789]"));
}

TEST(IndependentJsonTest, FindsNoneInStrings) {
  EXPECT_FALSE(MayHaveLargeNumber(R"({"spanId":"3f2a9c01-00b7-e4d2-5e10-0c33e8f1a2b4"})"));
  EXPECT_FALSE(MayHaveLargeNumber('"' + std::string(400, '9') + '"'));
  EXPECT_FALSE(MayHaveLargeNumber(R"(["\"1e400"])"));
  EXPECT_FALSE(MayHaveLargeNumber(R"("1e400)"));
}

}  // namespace
