#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "JsonMembers.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using TestKit::MembersOf;
using TestKit::TextOf;

TEST(JsonMembersTest, EachValueStandsAsItIs) {
  EXPECT_THAT(MembersOf(R"({"a":3,"b":"x","c":41.50,"d":true,"e":null})"),
              ElementsAre(Pair("a", "3"), Pair("b", "\"x\""), Pair("c", "41.50"), Pair("d", "true"),
                          Pair("e", "null")));
}

TEST(JsonMembersTest, NestedValuesStayWhole) {
  EXPECT_THAT(
      MembersOf(R"({"a":{"b":[1,{"c":"}],"}]},"d":[[],{}],"e":1})"),
      ElementsAre(Pair("a", R"({"b":[1,{"c":"}],"}]})"), Pair("d", "[[],{}]"), Pair("e", "1")));
}

TEST(JsonMembersTest, QuotesInsideStringsEndNothing) {
  EXPECT_THAT(MembersOf(R"({"a":"x\",\"b\":2\\","c":3})"),
              ElementsAre(Pair("a", R"("x\",\"b\":2\\")"), Pair("c", "3")));
}

TEST(JsonMembersTest, WhiteSpaceBetweenPartsIsNoPartOfThem) {
  EXPECT_THAT(MembersOf(" { \"a\" : 1 ,\t\"b\" : [ 1 ] \n} "),
              ElementsAre(Pair("a", "1"), Pair("b", "[ 1 ]")));
}

TEST(JsonMembersTest, NamesAreRead) {
  EXPECT_THAT(MembersOf(R"({"\"a\u0062":1})"), ElementsAre(Pair("\"ab", "1")));
}

TEST(JsonMembersTest, OfEqualNamesTheLastOneCounts) {
  EXPECT_THAT(MembersOf(R"({"a":1,"a":2})"), ElementsAre(Pair("a", "2")));
}

TEST(JsonMembersTest, WhatIsNoObjectHasNone) {
  for (const char* const text : {"", " ", "{}", "[1,2]", "\"a\"", "3", "order placed", "{1:2}"}) {
    EXPECT_THAT(MembersOf(text), IsEmpty()) << text;
  }
}

// A component may write anything. Each text is read from a block of exactly its size.
TEST(JsonMembersTest, EveryBeginningOfALineCanBeRead) {
  const std::string line = R"( {"a\u0041": "x\"\ud83d\ude00" , "b":{"c":[1,"}"]}} )";
  for (std::size_t size = 0; size <= line.size(); ++size) {
    const std::unique_ptr<char[]> bytes(new char[size]);
    line.copy(bytes.get(), size);
    for (const auto& member : MembersOf({bytes.get(), size})) {
      TextOf(member.second);
    }
  }
  EXPECT_THAT(MembersOf(line),
              ElementsAre(Pair("aA", R"("x\"\ud83d\ude00")"), Pair("b", R"({"c":[1,"}"]})")));
}

TEST(JsonMembersTest, EscapesStandForTheirCharacters) {
  EXPECT_EQ(TextOf(R"("\"\\\/\b\f\n\r\t")"), "\"\\/\b\f\n\r\t");
  EXPECT_EQ(TextOf(R"("\u0041\u00e4\u20AC\ud83d\ude00")"), "A\u00e4\u20ac\U0001F600");
  EXPECT_EQ(TextOf(R"("\ue000\u0041")"), "\ue000A");
}

TEST(JsonMembersTest, PlainTextIsItself) {
  EXPECT_EQ(TextOf("\"caf\u00e9 {1,2}\""), "caf\u00e9 {1,2}");
  EXPECT_EQ(TextOf("\"\""), "");
}

TEST(JsonMembersTest, WhatIsNoStringIsNoText) {
  for (const char* const json : {"", "3", "{}", "\"", "\"ab", "ab\""}) {
    EXPECT_EQ(TextOf(json), "") << json;
  }
}

}  // namespace
