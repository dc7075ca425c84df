#include <VMetrics.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Privacy.h"

namespace vmetrics {
namespace {

class PrivacyTest : public testing::Test {
 protected:
  void Parse(std::vector<std::string> arguments) {
    CLI::App command;
    privacy_.AddTo(command);
    command.parse(arguments);
  }

  Privacy privacy_;
};

TEST_F(PrivacyTest, PrivateMetricsAreMasked) {
  EXPECT_TRUE(privacy_.IsMasked("386596864"));   // The client's printerList.
  EXPECT_FALSE(privacy_.IsMasked("386531328"));  // The server's is public.
}

TEST_F(PrivacyTest, PrivateEventsAreMasked) {
  std::string definition = "PRIVATE_EVENT;json;secret;1";
  ASSERT_EQ(VMetrics::RegisterMetricsStringDataType(definition.data()), VMETRICS_OK);
  EXPECT_TRUE(privacy_.IsMasked("PRIVATE_EVENT"));
  EXPECT_FALSE(privacy_.IsMasked("private_event"));
  EXPECT_FALSE(privacy_.IsMasked("nox_user_connect"));
}

TEST_F(PrivacyTest, NegativeIdsAreFound) {
  std::string definition = "-5;int;secret;1";
  ASSERT_EQ(VMetrics::RegisterMetricsDataType(definition.data()), VMETRICS_OK);
  EXPECT_TRUE(privacy_.IsMasked("-5"));
}

TEST_F(PrivacyTest, NumberMayBeAnEventId) {
  std::string definition = "386531328;json;secret;1";
  ASSERT_EQ(VMetrics::RegisterMetricsStringDataType(definition.data()), VMETRICS_OK);
  EXPECT_TRUE(privacy_.IsMasked("386531328"));
}

TEST_F(PrivacyTest, UnknownIdsAreNotMasked) {
  for (const std::string id : {"", "1", "386596864x", " 386596864", "4681564160"}) {
    EXPECT_FALSE(privacy_.IsMasked(id)) << id;
  }
}

TEST_F(PrivacyTest, UserNamesAreMasked) { EXPECT_TRUE(privacy_.AreUserNamesMasked()); }

TEST_F(PrivacyTest, NothingIsMaskedOnDemand) {
  Parse({"--show-private"});
  EXPECT_FALSE(privacy_.IsMasked("386596864"));
  EXPECT_FALSE(privacy_.AreUserNamesMasked());
}

}  // namespace
}  // namespace vmetrics
