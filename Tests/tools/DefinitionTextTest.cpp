#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "CatalogueKeeper.h"
#include "DefinitionText.h"

namespace vmetrics {
namespace {

using std::string_view_literals::operator""sv;
using testing::ElementsAre;
using testing::StrEq;

class DefinitionTextTest : public testing::Test {
  CatalogueKeeper catalogue_;
};

std::string Refusal(std::string_view text) { return RefusalOf(DefinitionKind::kNumeric, text); }

TEST_F(DefinitionTextTest, ReadsWhatTheLibraryStores) {
  for (const std::string_view text :
       {"1;int;a;0"sv, ";;2;;int;;a;;0;;"sv, "3;int;a;0;junk;"sv, " +4x ; int;a ; 1"sv,
        "-5;;;i;a;0"sv, "4294967302;int;a;0"sv, "99999999999999999999;int;a;0"sv, "8;int;a;0\0;1"sv,
        "9;int;a;\r"sv, "2147483658;int;a;0"sv}) {
    const DefinitionFields fields(text);
    ASSERT_EQ(RegisterDefinition(DefinitionKind::kNumeric, text), VMETRICS_OK) << text;
    EXPECT_THAT(VMetrics::GetMetricsMap().at(DecimalId(fields.id).key),
                ElementsAre(std::string(fields.type), std::string(fields.name),
                            std::string(fields.privateFlag)))
        << text;
  }
}

TEST_F(DefinitionTextTest, ReadsTheEventIdThatTheLibraryStores) {
  for (const std::string_view text : {"0;json;x;0"sv, ";;a b ;json;x;0"sv, "\xFF;json;x;0"sv}) {
    const DefinitionFields fields(text);
    ASSERT_EQ(RegisterDefinition(DefinitionKind::kEvent, text), VMETRICS_OK) << text;
    EXPECT_THAT(VMetrics::GetMetricsStringMap().at(std::string(fields.id)),
                ElementsAre("json", "x", "0"))
        << text;
  }
}

TEST_F(DefinitionTextTest, FindsAReasonForWhatIsRefusedAndForNothingElse) {
  for (const DefinitionKind kind : {DefinitionKind::kNumeric, DefinitionKind::kEvent}) {
    for (const std::string_view text :
         {""sv, ";"sv, ";;;;"sv, "1"sv, "1;int"sv, "1;int;a"sv, "1;int;;0"sv, "1;int;a;0"sv,
          "1;int;b;0"sv, "0;int;a;0"sv, "0x10;int;a;0"sv, "a;int;a;0"sv, " ;int;a;0"sv,
          "4294967296;int;a;0"sv, "-99999999999999999999;int;a;0"sv, "302645249;int;a;0"sv,
          "nox_user_connect;json;a;0"sv, "5\0;int;a;0"sv, "\0005;int;a;0"sv}) {
      const std::string refusal = RefusalOf(kind, text);
      EXPECT_EQ(refusal.empty(), RegisterDefinition(kind, text) == VMETRICS_OK)
          << text << ": " << refusal;
    }
  }
}

TEST_F(DefinitionTextTest, SaysWhyADefinitionIsRefused) {
  EXPECT_THAT(Refusal("1;int;;0"),
              StrEq("3 of the four fields \"ID;type;name;private\", empty ones not counted"));
  EXPECT_THAT(Refusal("abc;int;a;0"), StrEq("the ID \"abc\" is not a decimal number"));
  EXPECT_THAT(Refusal("0x120A0012;int;a;0"),
              StrEq("the ID 0x120A0012 is not decimal: write 302645266"));
  EXPECT_THAT(Refusal("00;int;a;0"), StrEq("the ID \"00\" counts as 0"));
  EXPECT_THAT(Refusal("4294967296;int;a;0"),
              StrEq("of the ID 4294967296 only the low 32 bits count, which are 0"));
  EXPECT_THAT(Refusal("302645249;int;a;0"),
              StrEq("the ID 302645249 (0x120A0001) is taken by displayFPS (int)"));
  EXPECT_THAT(RefusalOf(DefinitionKind::kEvent, "nox_user_connect;int;a;0"),
              StrEq("the event ID nox_user_connect is taken by vmConnect (json)"));
}

TEST_F(DefinitionTextTest, ShowsATerminalNothingToObey) {
  EXPECT_THAT(Refusal("\x1B[2J;int;a;0"), StrEq("the ID \"\\u001b[2J\" is not a decimal number"));
}

TEST(DefinitionFieldsTest, CountsWhatIsThere) {
  EXPECT_EQ(DefinitionFields("").count, 0U);
  EXPECT_EQ(DefinitionFields(";1;;int;").count, 2U);
  EXPECT_EQ(DefinitionFields("1;int;a;0;b").count, 4U);
}

TEST(DefinitionFieldsTest, TellsEmptyFields) {
  EXPECT_TRUE(DefinitionFields(";1;int;a;0").hasEmpty);
  EXPECT_TRUE(DefinitionFields("1;int;;0").hasEmpty);
  EXPECT_FALSE(DefinitionFields("1;int;a;0").hasEmpty);
  EXPECT_FALSE(DefinitionFields("1;int;a;0;;b").hasEmpty);
}

TEST(DefinitionFieldsTest, KeepsWhatFollows) {
  EXPECT_EQ(DefinitionFields("1;int;a;0").rest, "");
  EXPECT_EQ(DefinitionFields("1;int;a;0;").rest, "");
  EXPECT_EQ(DefinitionFields("1;int;a;0;b;c").rest, "b;c");
}

TEST(DecimalIdTest, TellsHowANumberWasRead) {
  EXPECT_EQ(DecimalId(" 12x").trailing, "x");
  EXPECT_EQ(DecimalId("12").trailing, "");
  EXPECT_FALSE(DecimalId("x").isNumber);
  EXPECT_TRUE(DecimalId("99999999999999999999").isOutOfRange);
  EXPECT_FALSE(DecimalId("4294967297").isOutOfRange);
  EXPECT_EQ(DecimalId("4294967297").value, 4294967297);
}

}  // namespace
}  // namespace vmetrics
