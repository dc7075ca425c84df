#include <fmt/format.h>
#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "CatalogueKeeper.h"
#include "catalogue/DefinitionLint.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DefinitionLintTest : public testing::Test {
 protected:
  /// The rules that the next line of a file breaks.
  std::vector<std::string> Rules(std::string_view line,
                                 DefinitionKind kind = DefinitionKind::kNumeric) {
    std::vector<std::string> rules;
    for (const LintFinding& finding : linter_.Lint(kind, {file_, ++number_}, line).findings) {
      rules.emplace_back(finding.rule);
    }
    return rules;
  }

  CatalogueKeeper catalogue_;

 private:
  const std::string file_ = "x.def";
  std::uint64_t number_ = 0;
  DefinitionLinter linter_;
};

std::string LineOf(const std::string& id, const MetricEntry& entry) {
  return fmt::format("{};{}", id, fmt::join(entry, ";"));
}

TEST_F(DefinitionLintTest, FindsNothingWrongWithWhatIsBuiltIn) {
  VMetrics::GetMetricsMap().clear();
  VMetrics::GetMetricsStringMap().clear();
  DefinitionLinter linter;
  for (const auto& [id, entry] : catalogue_.Numeric()) {
    const std::string line = LineOf(std::to_string(id), entry);
    EXPECT_THAT(linter.Lint(DefinitionKind::kNumeric, {"", 1}, line).findings, IsEmpty()) << line;
  }
  for (const auto& [eventId, entry] : catalogue_.Events()) {
    const std::string line = LineOf(eventId, entry);
    EXPECT_THAT(linter.Lint(DefinitionKind::kEvent, {"", 1}, line).findings, IsEmpty()) << line;
  }
  EXPECT_EQ(VMetrics::GetMetricsMap(), catalogue_.Numeric());
  EXPECT_EQ(VMetrics::GetMetricsStringMap(), catalogue_.Events());
}

TEST_F(DefinitionLintTest, AllowsTheSameNameOnTheOtherSideAlone) {
  EXPECT_THAT(Rules("302645520;int;fresh;0"), IsEmpty());                     // 0x120A0110
  EXPECT_THAT(Rules("302711056;int;fresh;0"), IsEmpty());                     // 0x120B0110
  EXPECT_THAT(Rules("302645521;int;fresh;0"), ElementsAre("name-clash"));     // 0x120A0111
  EXPECT_THAT(Rules("302711057;string;fresh;0"), ElementsAre("name-clash"));  // 0x120B0111
  EXPECT_THAT(Rules("285868304;int;fresh;0"), ElementsAre("name-clash"));     // 0x110A0110
}

TEST_F(DefinitionLintTest, TellsEventsWithOneNameApartFromNumericMetrics) {
  EXPECT_THAT(Rules("one;int;displayFPS;0", DefinitionKind::kEvent), IsEmpty());
  EXPECT_THAT(Rules("two;int;displayFPS;0", DefinitionKind::kEvent), ElementsAre("name-clash"));
}

TEST_F(DefinitionLintTest, KnowsAByteOrderMarkInTheFirstLineAlone) {
  EXPECT_THAT(Rules("\xEF\xBB\xBFone;int;a;0", DefinitionKind::kEvent),
              ElementsAre("byte-order-mark"));
  EXPECT_THAT(Rules("\xEF\xBB\xBFtwo;int;b;0", DefinitionKind::kEvent), IsEmpty());
}

TEST_F(DefinitionLintTest, AllowsAnEventIdThatARecordHasRoomFor) {
  EXPECT_THAT(Rules(std::string(128, 'a') + ";int;a;0", DefinitionKind::kEvent), IsEmpty());
  EXPECT_THAT(Rules(std::string(129, 'a') + ";int;b;0", DefinitionKind::kEvent),
              ElementsAre("event-id-length"));
}

TEST_F(DefinitionLintTest, TellsARefusalFirst) {
  EXPECT_THAT(Rules("0;int ;a;2;b\r"),
              ElementsAre("refused", "carriage-return", "blanks", "type", "flag", "fifth-field"));
}

}  // namespace
}  // namespace vmetrics
