#include <VJson.h>
#include <gmock/gmock.h>

#include <random>
#include <string>
#include <string_view>

#include "records/JsonFault.h"

namespace vmetrics {
namespace {

/// Offset and problem of a text's fault; empty where it is JSON.
std::string FaultIn(std::string_view text) {
  const std::optional<JsonFault> fault = FindJsonFault(text);
  return fault ? std::to_string(fault->offset) + ": " + std::string(fault->problem) : "";
}

bool ParserTakes(const std::string& text) { return VJson::Value().Parse(text); }

/// JSON in which every rule of the grammar is at work.
const std::string kTexts[] = {
    R"({"a":1,"b":[true,false,null],"c":{"d":"e","f":{}},"g":[]})",
    " { \"a\" : [ 1 , -2.50e+10 , 0.1E-7 , 0 , -0 ] }\r\n\t",
    R"(["\"\\\/\b\f\n\r\t","\u0041\uD834\uDd1e\uabCD\udBFF\udfff","é中😀","\u007f )"
    "\x7F\xDF\xBF\xE0\xA0\x80\xEC\x80\x80\xED\x9F\xBF\xEE\x80\x80\xF0\x90\x80\x80\xF1\x80\x80\x80"
    "\xF4\x8F\xBF\xBF\"]",
    R"("text")",
    "-12.5e7",
    "null",
};

TEST(JsonFaultTest, JsonHasNone) {
  for (const std::string& text : kTexts) {
    EXPECT_EQ(FaultIn(text), "") << text;
    EXPECT_TRUE(ParserTakes(text)) << text;
  }
}

TEST(JsonFaultTest, FaultIsAtTheFirstByteThatCannotStandThere) {
  // A control character can stand nowhere, and what precedes it is the beginning of JSON.
  for (const std::string& text : kTexts) {
    for (std::size_t at = 0; at <= text.size(); ++at) {
      std::string bad = text;
      bad.insert(at, 1, '\x01');
      const std::optional<JsonFault> fault = FindJsonFault(bad);
      ASSERT_TRUE(fault) << bad;
      EXPECT_EQ(fault->offset, at) << bad;
    }
  }
}

TEST(JsonFaultTest, TextThatIsCutShortHasItAtItsEnd) {
  for (const std::string& text : kTexts) {
    for (std::size_t size = 0; size < text.size(); ++size) {
      const std::optional<JsonFault> fault = FindJsonFault(text.substr(0, size));
      EXPECT_EQ(fault.has_value(), !ParserTakes(text.substr(0, size))) << text.substr(0, size);
      EXPECT_TRUE(!fault || fault->offset == size) << text.substr(0, size);
    }
  }
}

TEST(JsonFaultTest, VerdictIsThatOfTheParser) {
  std::mt19937 random(1);  // NOLINT(bugprone-random-generator-seed): the same texts each time.
  const std::string_view letters =
      "{}[]\":,\\u0dD8cCe.-+ tn\x01\x7F\x80\x9F\xA0\xBF\xC2\xE0\xED\xF0\xF4\xFF";
  int valid = 0;
  for (int round = 0; round < 200000; ++round) {
    std::string text = kTexts[random() % std::size(kTexts)];
    for (auto changes = random() % 3; changes > 0; --changes) {
      text[random() % text.size()] = letters[random() % letters.size()];
    }
    const bool takes = ParserTakes(text);
    valid += takes ? 1 : 0;
    ASSERT_EQ(FaultIn(text).empty(), takes) << text << "\n" << FaultIn(text);
  }
  EXPECT_GT(valid, 20000);
  EXPECT_LT(valid, 180000);
}

TEST(JsonFaultTest, NestingEndsWhereThatOfTheParserEnds) {
  const std::string deepest = std::string(128, '[') + std::string(128, ']');
  EXPECT_EQ(FaultIn(deepest), "");
  EXPECT_TRUE(ParserTakes(deepest));
  EXPECT_EQ(FaultIn("[" + deepest + "]"), "128: it is nested deeper than 128 levels");
  EXPECT_FALSE(ParserTakes("[" + deepest + "]"));
  EXPECT_EQ(FaultIn(std::string(60000, '[')), "128: it is nested deeper than 128 levels");
}

TEST(JsonFaultTest, ProblemIsNamed) {
  EXPECT_EQ(FaultIn(""), "0: a value is missing");
  EXPECT_EQ(FaultIn("\xEF\xBB\xBF{}"), "0: a value is missing");
  EXPECT_EQ(FaultIn("{} x"), "3: something stands behind the value");
  EXPECT_EQ(FaultIn("01"), "1: something stands behind the value");
  EXPECT_EQ(FaultIn("{[1]}"), "1: a member's name in quotes is missing");
  EXPECT_EQ(FaultIn("{a:1}"), "1: a member's name in quotes is missing");
  EXPECT_EQ(FaultIn("{\"a\":1,}"), "7: a member's name in quotes is missing");
  EXPECT_EQ(FaultIn("{\"a\"=1}"), "4: a colon is missing");
  EXPECT_EQ(FaultIn("{\"a\":}"), "5: a value is missing");
  EXPECT_EQ(FaultIn("{\"a\":1;"), "6: a comma or } is missing");
  EXPECT_EQ(FaultIn("[1 2]"), "3: a comma or ] is missing");
  EXPECT_EQ(FaultIn("[1,]"), "3: a value is missing");
  EXPECT_EQ(FaultIn("[nul]"), "4: there is no such word");
  EXPECT_EQ(FaultIn("[1.]"), "3: a digit is missing");
  EXPECT_EQ(FaultIn("[-]"), "2: a digit is missing");
  EXPECT_EQ(FaultIn("[1e+]"), "4: a digit is missing");
  EXPECT_EQ(FaultIn("[\"a"), "3: a string is not closed");
  EXPECT_EQ(FaultIn("[\"a\n\"]"), "3: a control character is not escaped");
  EXPECT_EQ(FaultIn("[\"\\x\"]"), "3: there is no such escape");
  EXPECT_EQ(FaultIn("[\"\\u00g0\"]"), "6: a hexadecimal digit is missing");
  EXPECT_EQ(FaultIn("[\"\\ud800\"]"), "8: a high surrogate stands alone");
  EXPECT_EQ(FaultIn("[\"\\ud800\\ud800\"]"), "11: a high surrogate stands alone");
  EXPECT_EQ(FaultIn("[\"\\udc00\"]"), "5: a low surrogate stands alone");
  EXPECT_EQ(FaultIn("[\"\xC3\"]"), "3: it is no UTF-8");
  EXPECT_EQ(FaultIn("[\"\xE0\x80\x80\"]"), "3: it is no UTF-8");
  EXPECT_EQ(FaultIn("[\"\xC1\xBF\"]"), "2: it is no UTF-8");
}

}  // namespace
}  // namespace vmetrics
