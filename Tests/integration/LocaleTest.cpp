// A desktop host may set a C++ locale that groups digits and writes a decimal comma.

#include <gmock/gmock.h>

#include <regex>
#include <string>

#include "ProbeProcess.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// The text with what changes from run to run taken out: ticks, durations that come from them, and
/// identifiers.
std::string WithoutChanges(std::string text) {
  text = std::regex_replace(text, std::regex("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"), "U");
  text = std::regex_replace(text, std::regex("[0-9]{13,20}"), "T");
  return std::regex_replace(text, std::regex("\"usedTime\":[0-9]+"), "\"usedTime\":D");
}

class LocaleTest : public testing::Test {
 protected:
  static ProbeResult Run(const std::vector<std::string>& commands) {
    const ProbeDirectory directory;
    const ProbeResult result = RunProbe(directory, commands);
    EXPECT_TRUE(Succeeded(result));
    return result;
  }
};

TEST_F(LocaleTest, GroupingLocaleChangesNoText) {
  const std::string usual = WithoutChanges(Run({"everything"}).output);
  EXPECT_EQ(WithoutChanges(Run({"grouping-locale", "everything"}).output), usual);
  EXPECT_NE(usual.find("1234567"), std::string::npos);
  EXPECT_NE(usual.find("1234567.25"), std::string::npos);
}

TEST_F(LocaleTest, IdentifiersKeepTheirFormUnderAGroupingLocale) {
  const ProbeResult result = Run({"grouping-locale", "everything", "everything", "everything"});
  EXPECT_THAT(result.Values("identifier"), SizeIs(3));
  for (const std::string& identifier : result.Values("identifier")) {
    EXPECT_THAT(identifier, testing::MatchesRegex("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"));
  }
}

TEST_F(LocaleTest, DiagnosticsKeepTheirFormUnderAGroupingLocale) {
  const ProbeResult result = Run({"grouping-locale", "insert", "1234567", "t", "e", "s", "", "0"});
  EXPECT_THAT(result.Values("insert"), ElementsAre("-9996"));
  EXPECT_THAT(result.diagnostics,
              testing::MatchesRegex(
                  "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}Z ERROR "
                  "InsertRecord: status\\[1234567\\] is not exist "
                  "\\[Framework/VMetrics/src/DotRecord:[0-9]+\\]\n"));
}

}  // namespace
