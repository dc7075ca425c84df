#include <gtest/gtest.h>

#include <string>

#include "JsonObjectCheck.h"
#include "JsonValidity.h"

namespace vmetrics {
namespace {

class JsonObjectCheckTest : public testing::Test {
 protected:
  bool IsObject(const std::string& text) { return check_.IsObject(text); }
  bool IsObjectWith(const std::string& value) { return IsObject("{\"a\":" + value + "}"); }

  JsonObjectCheck check_;
};

TEST_F(JsonObjectCheckTest, ObjectsAreAccepted) {
  for (const std::string text :
       {"{}", " { } ", R"({"a":1})", R"({"a":{"b":[]},"c":[{},[1,"x"]],"":null})",
        R"({"a":"\u00e4\ud83d\ude00\"\\\/\b\f\n\r\t","b":true,"c":false})"}) {
    EXPECT_TRUE(IsObject(text)) << text;
  }
}

TEST_F(JsonObjectCheckTest, OtherValuesAreRefused) {
  for (const std::string text : {"", " ", "[]", "[{}]", "1", "\"{}\"", "null", "true"}) {
    EXPECT_FALSE(IsObject(text)) << text;
  }
}

TEST_F(JsonObjectCheckTest, WhatIsNotJsonIsRefused) {
  for (const std::string text : {"{",
                                 "}",
                                 "{}}",
                                 "{}{}",
                                 "{} 1",
                                 "{]",
                                 R"({"a"})",
                                 R"({"a":})",
                                 R"({"a":1,})",
                                 R"({,})",
                                 R"({"a":1 "b":2})",
                                 R"({"a" 1})",
                                 R"({a:1})",
                                 R"({'a':1})",
                                 R"({"a":[1})",
                                 R"({"a":1])",
                                 R"({"a":[1 2]})",
                                 R"({"a":[1,]})",
                                 R"({"a":{"b":1})",
                                 R"({"a":"b)",
                                 "{\"a\":\"\n\"}"}) {
    EXPECT_FALSE(IsObject(text)) << text;
  }
}

TEST_F(JsonObjectCheckTest, WordsAreCheckedToTheirLastLetter) {
  for (const std::string value : {"nul", "nulll", "nope", "tru", "truee", "True", "falsch", "x"}) {
    EXPECT_FALSE(IsObjectWith(value)) << value;
  }
}

TEST_F(JsonObjectCheckTest, EscapesAndUtf8AreChecked) {
  for (const std::string value : {R"("\x")", R"("\u12")", R"("\ud800")", "\"\xFF\"", "\"\xC3\"",
                                  "\"\xED\xA0\x80\"", "\"\x01\""}) {
    EXPECT_FALSE(IsObjectWith(value)) << value;
    EXPECT_FALSE(IsObject("{" + value + ":1}")) << value;
  }
}

TEST_F(JsonObjectCheckTest, NumbersOfAnySizeAreAccepted) {
  for (const std::string value :
       {"0", "-0", "10", "2.50", "1e400", "-1E-400", "1.5e+10", "18446744073709551616",
        "123456789012345678901234567890", "0.000000000000000000000000000000000000001"}) {
    EXPECT_TRUE(IsObjectWith(value)) << value;
    EXPECT_TRUE(IsObjectWith("[" + value + " , " + value + "]")) << value;
  }
}

TEST_F(JsonObjectCheckTest, WhatOnlyLooksLikeANumberIsRefused) {
  for (const std::string value : {"01", "-", "+1", "1.", ".5", "1e", "1e+", "--1", "0x10", "1-2",
                                  "-a", "1.2.3", "1 2", "Infinity", "NaN"}) {
    EXPECT_FALSE(IsObjectWith(value)) << value;
  }
}

/// Arrays within the object, `levels` altogether.
std::string Nested(int levels) {
  const auto arrays = static_cast<std::size_t>(levels - 1);
  return std::string(arrays, '[') + std::string(arrays, ']');
}

TEST_F(JsonObjectCheckTest, NestingIsLimited) {
  EXPECT_TRUE(IsObjectWith(Nested(kDeepestNesting)));
  EXPECT_FALSE(IsObjectWith(Nested(kDeepestNesting + 1)));
  EXPECT_FALSE(IsObjectWith(Nested(1'000'000)));
}

TEST_F(JsonObjectCheckTest, RefusedTextLeavesNothingBehind) {
  EXPECT_FALSE(IsObject(R"({"a":"b)"));
  EXPECT_TRUE(IsObject(R"({"a":"b"})"));
  EXPECT_FALSE(IsObject("{\"a\":\"" + std::string(100'000, 'x')));
  EXPECT_TRUE(IsObject(R"({"a":"b"})"));
}

}  // namespace
}  // namespace vmetrics
