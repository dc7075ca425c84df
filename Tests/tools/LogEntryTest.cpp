#include <gmock/gmock.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "LogEntry.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "key kind text" of each.
std::vector<std::string> Described(const std::vector<Member>& members) {
  static const char* const kKinds[] = {"null", "boolean", "number", "string", "object", "array"};
  std::vector<std::string> described;
  for (const Member& member : members) {
    described.push_back(std::string(member.key) + ' ' + kKinds[static_cast<int>(member.kind)] +
                        ' ' + std::string(member.text));
  }
  return described;
}

class LogEntryTest : public testing::Test {
 protected:
  const LogEntry* Parse(std::string text) {
    text_ = std::move(text);
    return parser_.Parse(text_);
  }

  /// The member "a" of an object with that value.
  Member MemberWith(const std::string& value) {
    const LogEntry* entry = Parse("{\"a\":" + value + "}");
    return entry != nullptr ? entry->members.at(0) : Member{};
  }

  LogEntryParser parser_;
  std::string text_;
};

TEST_F(LogEntryTest, MembersAreTakenApart) {
  const LogEntry* entry = Parse(R"({"s":"x","n":-1.50e3,"t":true,"f":false,"z":null})");
  ASSERT_NE(entry, nullptr);
  EXPECT_THAT(Described(entry->members),
              ElementsAre("s string x", "n number -1.50e3", "t boolean true", "f boolean false",
                          "z null null"));
  EXPECT_THAT(entry->args, IsEmpty());
}

TEST_F(LogEntryTest, ObjectsAndArraysAreTheirTexts) {
  const LogEntry* entry = Parse(R"({"o":{"a":{}, "b":[1]} ,"e":{},"l":[ [], {"c":"]"} ] })");
  ASSERT_NE(entry, nullptr);
  EXPECT_THAT(Described(entry->members), ElementsAre(R"(o object {"a":{}, "b":[1]})", "e object {}",
                                                     R"(l array [ [], {"c":"]"} ])"));
}

TEST_F(LogEntryTest, ArgsAreTakenApartToo) {
  const LogEntry* entry = Parse(R"({"args":{"x":1,"args":{"y":2},"l":[3]},"b":{"args":{"z":4}}})");
  ASSERT_NE(entry, nullptr);
  EXPECT_THAT(Described(entry->args),
              ElementsAre("x number 1", R"(args object {"y":2})", "l array [3]"));
  EXPECT_EQ(entry->Find("args")->text, R"({"x":1,"args":{"y":2},"l":[3]})");
}

TEST_F(LogEntryTest, ArgsNeedNotBeAnObject) {
  for (const std::string args : {"[1]", "\"x\"", "1", "null", "{}"}) {
    const LogEntry* entry = Parse("{\"args\":" + args + "}");
    ASSERT_NE(entry, nullptr) << args;
    EXPECT_EQ(entry->members.size(), 1U) << args;
    EXPECT_THAT(entry->args, IsEmpty()) << args;
  }
}

TEST_F(LogEntryTest, EscapesAreResolved) {
  const LogEntry* entry = Parse(R"({"\u0061\n":"\u00e4\ud83d\ude00\"\\\u0000"})");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->members[0].key, "a\n");
  EXPECT_EQ(entry->members[0].text, std::string("ä😀\"\\\0", 9));
}

TEST_F(LogEntryTest, BlanksDoNotMatter) {
  const LogEntry* entry = Parse(" { \"a\" : 1 , \"args\" :\t{ \"b\" : 2 } } \r");
  ASSERT_NE(entry, nullptr);
  EXPECT_THAT(Described(entry->members), ElementsAre("a number 1", R"(args object { "b" : 2 })"));
  EXPECT_THAT(Described(entry->args), ElementsAre("b number 2"));
}

TEST_F(LogEntryTest, RepeatedKeysAreAllThere) {
  const LogEntry* entry = Parse(R"({"a":1,"a":2,"args":{"b":3,"b":4}})");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->members.size(), 3U);
  EXPECT_EQ(entry->args.size(), 2U);
  EXPECT_EQ(entry->Find("a")->text, "1");
  EXPECT_EQ(entry->FindInArgs("b")->text, "3");
}

TEST_F(LogEntryTest, WhatIsNoObjectIsNothing) {
  for (const std::string text : {"",
                                 " ",
                                 "[]",
                                 "1",
                                 "\"{}\"",
                                 "{",
                                 "{}}",
                                 "{}{}",
                                 "{} x",
                                 R"({"a":1)",
                                 R"({"a":1,})",
                                 R"({"a":nul})",
                                 R"({"a":01})",
                                 R"({"args":{"a":1])",
                                 R"({"args":{"a":}})",
                                 R"({"args":{"a":[1,]}})",
                                 R"({"a":"\ud800"})",
                                 "{\"a\":\"\xFF\"}",
                                 "{\"a\":\"\t\"}",
                                 "{\"\\x\":1}"}) {
    EXPECT_EQ(Parse(text), nullptr) << text;
  }
  EXPECT_EQ(Parse(std::string("{\"a\":1}\0", 8)), nullptr);
  EXPECT_EQ(Parse(std::string("{\0}", 3)), nullptr);
}

TEST_F(LogEntryTest, NothingIsLeftOfTheTextBefore) {
  ASSERT_NE(Parse(R"({"a":1,"args":{"b":2}})"), nullptr);
  ASSERT_EQ(Parse(R"({"c":3,"args":{"d":4},)"), nullptr);
  const LogEntry* entry = Parse("{}");
  ASSERT_NE(entry, nullptr);
  EXPECT_THAT(entry->members, IsEmpty());
  EXPECT_THAT(entry->args, IsEmpty());
}

TEST_F(LogEntryTest, DeepNestingIsRefused) {
  for (const int depth : {100, 600, 5000}) {
    const auto levels = static_cast<std::size_t>(depth);
    const std::string value = std::string(levels, '[') + std::string(levels, ']');
    EXPECT_EQ(Parse("{\"a\":" + value + "}") != nullptr, depth == 100) << depth;
    EXPECT_EQ(Parse("{\"args\":{\"a\":" + value + "}}") != nullptr, depth == 100) << depth;
  }
}

TEST_F(LogEntryTest, LongTextsAreTakenApart) {
  const std::string value(3000000, 'x');
  const LogEntry* entry = Parse("{\"a\":\"" + value + "\",\"args\":{\"b\":1}}");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->Text("a"), value);
  EXPECT_EQ(entry->args.size(), 1U);
}

TEST_F(LogEntryTest, NumbersAreReadInTheirRanges) {
  EXPECT_EQ(MemberWith("-9223372036854775808").Integer(), INT64_MIN);
  EXPECT_EQ(MemberWith("9223372036854775808").Integer(), std::nullopt);
  EXPECT_EQ(MemberWith("18446744073709551615").Unsigned(), UINT64_MAX);
  EXPECT_EQ(MemberWith("18446744073709551616").Unsigned(), std::nullopt);
  EXPECT_EQ(MemberWith("-1").Unsigned(), std::nullopt);
  EXPECT_EQ(MemberWith("-1.5e3").Double(), -1500.0);
  EXPECT_EQ(MemberWith("1e400").Double(), std::nullopt);
}

TEST_F(LogEntryTest, FractionsAreNoIntegers) {
  EXPECT_EQ(MemberWith("1.0").Integer(), std::nullopt);
  EXPECT_EQ(MemberWith("1e3").Unsigned(), std::nullopt);
}

TEST_F(LogEntryTest, OtherValuesAreNoNumbers) {
  for (const std::string value : {"\"1\"", "true", "null", "[1]", "{}"}) {
    EXPECT_EQ(MemberWith(value).Integer(), std::nullopt) << value;
    EXPECT_EQ(MemberWith(value).Unsigned(), std::nullopt) << value;
    EXPECT_EQ(MemberWith(value).Double(), std::nullopt) << value;
  }
}

TEST_F(LogEntryTest, NumberIsReadWithItsBlanksBehind) {
  EXPECT_EQ(MemberWith("1 \t").Integer(), 1);
}

TEST_F(LogEntryTest, TextIsThatOfStringsAlone) {
  const LogEntry* entry = Parse(R"({"a":"x","b":1})");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->Text("a"), "x");
  EXPECT_EQ(entry->Text("b"), "");
  EXPECT_EQ(entry->Text("c"), "");
}

TEST_F(LogEntryTest, StepHasASpanAndAName) {
  EXPECT_TRUE(Parse(R"({"spanId":"s","args":{"stepName":"Connect"}})")->IsStep());
  EXPECT_TRUE(Parse(R"({"spanId":"s","args":{"stepName":""}})")->IsStep());
  EXPECT_FALSE(Parse(R"({"spanId":"","args":{"stepName":"Connect"}})")->IsStep());
  EXPECT_FALSE(Parse(R"({"spanId":1,"args":{"stepName":"Connect"}})")->IsStep());
  EXPECT_FALSE(Parse(R"({"spanId":"s","args":{"stepName":1}})")->IsStep());
  EXPECT_FALSE(Parse(R"({"spanId":"s","stepName":"Connect","args":{}})")->IsStep());
  EXPECT_FALSE(Parse(R"({"args":{"stepName":"FirstPack"}})")->IsStep());
}

}  // namespace
}  // namespace vmetrics
