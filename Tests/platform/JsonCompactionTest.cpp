#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "WrittenJson.h"

namespace {

using namespace std::string_literals;

void ExpectAccepted(std::initializer_list<std::string> texts) {
  for (const std::string& text : texts) {
    EXPECT_NE(Compacted(text), std::nullopt) << testing::PrintToString(text);
  }
}

void ExpectRefused(std::initializer_list<std::string> texts) {
  for (const std::string& text : texts) {
    EXPECT_EQ(Compacted(text), std::nullopt) << testing::PrintToString(text);
  }
}

std::string Repeated(int times, std::string_view text) {
  std::string out;
  for (int i = 0; i < times; ++i) {
    out += text;
  }
  return out;
}

std::string NestedArrays(int levels) { return Repeated(levels, "[") + Repeated(levels, "]"); }

std::string NestedObjects(int levels) {
  return Repeated(levels - 1, "{\"k\":") + "{}" + Repeated(levels - 1, "}");
}

TEST(JsonCompactionTest, DropsWhiteSpaceBetweenValues) {
  EXPECT_EQ(Compacted(" \t\r\n{ \"a\" :\t[ 1 ,\n2.50 ] , \"b\":\r\n{ } } \n"),
            R"({"a":[1,2.50],"b":{}})");
}

TEST(JsonCompactionTest, KeepsWhiteSpaceWithinStrings) {
  EXPECT_EQ(Compacted(R"( [ " a  b " , "" , "c\" , d" , "\\" , "e f" ] )"),
            R"([" a  b ","","c\" , d","\\","e f"])");
}

TEST(JsonCompactionTest, KeepsScalarsLetterForLetter) {
  EXPECT_EQ(Compacted(" -0.0E+00 "), "-0.0E+00");
  EXPECT_EQ(Compacted("\ttrue\n"), "true");
  EXPECT_EQ(Compacted(R"( "\u0041\/\u00e9" )"), R"("\u0041\/\u00e9")");
}

TEST(JsonCompactionTest, AcceptsEveryKindOfValue) {
  ExpectAccepted({"{}", "[]", "\"\"", "0", "true", "false", "null", "\"text\"",
                  R"({"a":[1,{"b":null}],"c":{"d":[[]]}})"});
}

TEST(JsonCompactionTest, AcceptsWhiteSpaceAroundEveryToken) {
  ExpectAccepted(
      {" \t\r\n{ \t\r\n\"a\" \t\r\n: \t\r\n[ \t\r\n1 \t\r\n, \t\r\n2 \t\r\n] \t\r\n} \t\r\n", " 1 ",
       "\n[ ]\n"});
}

TEST(JsonCompactionTest, AcceptsNumbersOfAnySizeAndPrecision) {
  ExpectAccepted({"-0", "0.5", "2.50", "-0.0", "1e5", "1E+5", "1e-5", "1.25e10", "123456789012345",
                  "123456789012345678901234567890", "-123456789012345678901234567890", "1e400",
                  "-1e400", "1e-400", "0.000000000000000000000000000000000000001",
                  "18446744073709551616", Repeated(400, "9"), "0." + Repeated(400, "3")});
}

TEST(JsonCompactionTest, AcceptsExponentsOfAnySize) {
  ExpectAccepted({"1e2147483647", "1e2147483648", "1e-2147483649", "1e99999999999999999999",
                  "0e99999999999999999999", "1.5e-99999999999999999999"});
}

TEST(JsonCompactionTest, AcceptsEveryEscape) {
  ExpectAccepted({R"("\"\\\/\b\f\n\r\t")", R"("\u0041\u00e9\uFFFF\u0000")", R"("\ud83d\ude00")",
                  R"("\uDBFF\uDFFF")", R"({"\u0041":1})"});
}

TEST(JsonCompactionTest, AcceptsWellFormedUtf8) {
  ExpectAccepted({"\"\x7F\"", "\"\xC2\x80\"", "\"\xDF\xBF\"", "\"\xE0\xA0\x80\"",
                  "\"\xED\x9F\xBF\"", "\"\xEE\x80\x80\"", "\"\xEF\xBF\xBF\"",
                  "\"\xF0\x90\x80\x80\"", "\"\xF4\x8F\xBF\xBF\"",
                  "{\"\xC3\xA9\":\"\xE2\x82\xAC\"}"});
}

TEST(JsonCompactionTest, AcceptsAKeyTwice) { ExpectAccepted({R"({"a":1,"a":2})"}); }

TEST(JsonCompactionTest, RefusesTextWithoutAValue) { ExpectRefused({"", " ", " \t\r\n", "\n\n"}); }

TEST(JsonCompactionTest, RefusesWhatFollowsTheValue) {
  ExpectRefused({"{}x", "{} {}", "1 2", "[],", "{}}", "[]]", "null\0"s, "{}\0{}"s, "\"a\"\"b\"",
                 "truefalse", "{}\f", "{}\v", "{}\xC2\xA0"});
}

TEST(JsonCompactionTest, RefusesTextThatBreaksOff) {
  ExpectRefused({"{",         "[",  "\"",  "\"a",  "{\"a\"", "{\"a\":", "{\"a\":1",
                 "{\"a\":1,", "[1", "[1,", "tru",  "fals",   "nul",     "-",
                 "1.",        "1e", "1e+", "\"\\", "\"\\u",  "\"\\u00", "[[]"});
}

TEST(JsonCompactionTest, RefusesAByteOrderMark) {
  ExpectRefused({"\xEF\xBB\xBF{}", "\xEF\xBB\xBF", "{}\xEF\xBB\xBF"});
}

TEST(JsonCompactionTest, RefusesStrayCommas) {
  ExpectRefused({"[1,]", "{\"a\":1,}", "[,1]", "[,]", "{,}", "[1,,2]", "{\"a\":1,,\"b\":2}", ","});
}

TEST(JsonCompactionTest, RefusesBadNumbers) {
  ExpectRefused({"01",        "-01",  "00",    "+1",  ".5",    "-.5", "1.",   "1.e5",
                 "1e5.5",     "0x10", "1_000", "--1", "- 1",   "NaN", "-NaN", "Infinity",
                 "-Infinity", "nan",  "inf",   "1e",  "1e +5", "1,5"});
}

TEST(JsonCompactionTest, RefusesBadNames) {
  ExpectRefused({"True", "FALSE", "Null", "nil", "undefined", "yes", "t rue"});
}

TEST(JsonCompactionTest, RefusesComments) {
  ExpectRefused({"{}//", "{}/**/", "/**/{}", "//\n{}", "[1,/*2*/3]", "#\n{}"});
}

TEST(JsonCompactionTest, RefusesBadQuotingAndBadObjects) {
  ExpectRefused({"'a'", "{'a':1}", "{a:1}", "{1:1}", "{null:1}", "{\"a\"}", "{\"a\" 1}",
                 "{\"a\"::1}", "[\"a\":1]", "{\"a\",1}", "{[]:1}", "(1)", "<1>"});
}

TEST(JsonCompactionTest, RefusesRawControlCharactersInStrings) {
  for (int byte = 0; byte < 0x20; ++byte) {
    ExpectRefused(
        {"\"a"s + static_cast<char>(byte) + "b\"", "{\"a"s + static_cast<char>(byte) + "b\":1}"});
  }
}

TEST(JsonCompactionTest, RefusesBadEscapes) {
  ExpectRefused({R"("\x41")", R"("\'")", R"("\a")", R"("\0")", R"("\u")", R"("\u004")",
                 R"("\u00G1")", R"("\U0041")", "\"\\\n\""});
}

TEST(JsonCompactionTest, RefusesLoneSurrogateEscapes) {
  ExpectRefused({R"("\ud800")", R"("\udbff")", R"("\udc00")", R"("\udfff")", R"("\ud800x")",
                 R"("\ud800\n")", R"("\ud800\u0041")", R"("\ud800\ud800")", R"("\ude00\ud83d")",
                 R"({"\ud800":1})"});
}

TEST(JsonCompactionTest, RefusesIllFormedUtf8) {
  for (const std::string text :
       {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC2", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xE1\x80",
        "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF", "\xF1\x80\x80",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFE", "\xFF"}) {
    ExpectRefused({"\"" + text + "\"", "{\"" + text + "\":1}", text, "[" + text + "]"});
  }
}

TEST(JsonCompactionTest, AcceptsNestingUpToTheLimit) {
  ExpectAccepted({NestedArrays(127), NestedArrays(128), NestedObjects(128),
                  "[" + NestedObjects(127) + "]", "{\"a\":" + NestedArrays(127) + "}"});
}

TEST(JsonCompactionTest, RefusesNestingBeyondTheLimit) {
  ExpectRefused({NestedArrays(129), NestedObjects(129), "[" + NestedObjects(128) + "]",
                 "{\"a\":" + NestedArrays(128) + "}"});
}

TEST(JsonCompactionTest, CountsLevelsRatherThanBrackets) {
  ExpectAccepted({"[" + NestedArrays(127) + Repeated(200, "," + NestedArrays(127)) + "]"});
}

/// Runs `body` in a thread with a stack as small as any host's: 64 KiB where a thread may have that
/// little.
void OnSmallStack(const std::function<void()>& body) {
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  const long size = std::max(64L * 1024, sysconf(_SC_THREAD_STACK_MIN));
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, static_cast<std::size_t>(size)), 0);
  pthread_t thread;
  const auto run = [](void* argument) -> void* {
    (*static_cast<const std::function<void()>*>(argument))();
    return nullptr;
  };
  void* const argument = const_cast<std::function<void()>*>(&body);
  ASSERT_EQ(pthread_create(&thread, &attributes, run, argument), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  ASSERT_EQ(pthread_attr_destroy(&attributes), 0);
}

TEST(JsonCompactionTest, RefusesEndlessNestingOnASmallStack) {
  const std::string arrays(65535, '[');
  const std::string objects = Repeated(65535 / 5, "{\"k\":");
  bool accepted[] = {true, true};
  OnSmallStack([&] {
    accepted[0] = Compacted(arrays).has_value();
    accepted[1] = Compacted(objects).has_value();
  });
  EXPECT_FALSE(accepted[0]);
  EXPECT_FALSE(accepted[1]);
}

TEST(JsonCompactionTest, AcceptsTheDeepestNestingOnASmallStack) {
  bool accepted[] = {false, false};
  OnSmallStack([&] {
    accepted[0] = Compacted(NestedArrays(128)).has_value();
    accepted[1] = Compacted(NestedObjects(128)).has_value();
  });
  EXPECT_TRUE(accepted[0]);
  EXPECT_TRUE(accepted[1]);
}

}  // namespace
