// A desktop host may set a locale, of C++ and of C, that groups digits and writes a decimal comma.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "ProbeProcess.h"
#include "SpanIdentifierForm.h"
#include "TemporaryDirectory.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// Puts `mark` for every `part` of the text.
void Replace(std::string& text, const std::string& part, const std::string& mark) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
    text.replace(at, part.size(), mark);
  }
}

/// What the probe said, without what changes from run to run: identifiers, and the digits of ticks
/// and durations.
std::string WithoutChanges(const ProbeResult& result) {
  std::string text = result.output;
  for (const char* const name : {"identifier", "parent"}) {
    for (const std::string& identifier : result.Values(name)) {
      Replace(text, identifier, name);
    }
  }
  for (const std::string key :
       {"\"timestamp\":", "\"startTime\":", "\"endTime\":", "\"usedTime\":"}) {
    for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
      at += key.size();
      text.erase(at, text.find_first_not_of("0123456789", at) - at);
    }
  }
  return text;
}

class LocaleTest : public testing::Test {
 protected:
  static ProbeResult Run(const std::vector<std::string>& commands) {
    const TemporaryDirectory directory;
    const ProbeResult result = RunProbe(directory, commands);
    EXPECT_TRUE(Succeeded(result));
    return result;
  }
};

TEST_F(LocaleTest, CommaLocaleIsInForceInTheProbe) {
  EXPECT_THAT(Run({"numbers"}).Values("number"), ElementsAre("1234567", "1234567.5"));
  EXPECT_THAT(Run({"comma-locale", "numbers"}).Values("number"),
              ElementsAre("1.234.567", "1234567,5"));
}

TEST_F(LocaleTest, CommaLocaleChangesNoText) {
  const std::string usual = WithoutChanges(Run({"everything"}));
  EXPECT_EQ(WithoutChanges(Run({"comma-locale", "everything"})), usual);
  EXPECT_NE(usual.find("1234567"), std::string::npos);
  EXPECT_NE(usual.find("{\"diskUage\":1234567.5}"), std::string::npos);
  EXPECT_NE(usual.find("1234567.25"), std::string::npos);
}

TEST_F(LocaleTest, IdentifiersKeepTheirFormUnderACommaLocale) {
  const ProbeResult result = Run({"comma-locale", "everything", "everything", "everything"});
  EXPECT_THAT(result.Values("identifier"), SizeIs(3));
  for (const std::string& identifier : result.Values("identifier")) {
    EXPECT_PRED1(IsSpanIdentifier, identifier);
  }
}

TEST_F(LocaleTest, DiagnosticsKeepTheirFormUnderACommaLocale) {
  const ProbeResult result = Run({"comma-locale", "insert", "1234567", "t", "e", "s", "", "0"});
  EXPECT_THAT(result.Values("insert"), ElementsAre("-9996"));
  EXPECT_THAT(result.diagnostics,
              testing::MatchesRegex(
                  "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}Z ERROR "
                  "InsertRecord: status\\[1234567\\] is not exist "
                  "\\[Framework/VMetrics/src/DotRecord:[0-9]+\\]\n"));
}

}  // namespace
