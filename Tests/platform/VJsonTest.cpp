#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <functional>
#include <limits>
#include <new>
#include <sstream>
#include <string>
#include <utility>

#include "AllocationFailure.h"
#include "CommaLocale.h"
#include "VJson.h"

namespace {

/// The text of an object whose one member "v" is `value`.
template <typename Type>
std::string WithMember(Type value) {
  VJson::Value object;
  object.AddJsonValue("v", value);
  return object.ToString();
}

/// The value that `text` holds.
VJson::Value Parsed(const std::string& text) {
  VJson::Value value;
  EXPECT_TRUE(value.Parse(text)) << text;
  return value;
}

TEST(VJsonTest, BeginsAsAnEmptyObject) { EXPECT_EQ(VJson::Value().ToString(), "{}"); }

TEST(VJsonTest, KeepsMembersInTheOrderOfInsertion) {
  VJson::Value object;
  object.AddJsonValue("z", 1);
  object.AddJsonValue("a", "text");
  object.AddJsonValue("m", true);
  object.Add("b", VJson::Value());
  EXPECT_EQ(object.ToString(), R"({"z":1,"a":"text","m":true,"b":{}})");
}

TEST(VJsonTest, KeepsAKeyThatIsAddedTwice) {
  VJson::Value object;
  object.AddJsonValue("k", 1);
  object.AddJsonValue("k", 2);
  EXPECT_EQ(object.ToString(), R"({"k":1,"k":2})");
}

TEST(VJsonTest, TakesTextAsAStringAndNeverAsABool) {
  EXPECT_EQ(WithMember<const char*>("text"), R"({"v":"text"})");
  EXPECT_EQ(WithMember<std::string>("text"), R"({"v":"text"})");
  char writable[] = "text";
  EXPECT_EQ(WithMember<char*>(writable), R"({"v":"text"})");
  VJson::Value literal;
  literal.AddJsonValue("v", "text");
  EXPECT_EQ(literal.ToString(), R"({"v":"text"})");
}

TEST(VJsonTest, TakesANullTextAsAnEmptyOne) {
  EXPECT_EQ(WithMember<const char*>(nullptr), R"({"v":""})");
}

TEST(VJsonTest, TakesKeysAsCStringsAndAsStrings) {
  VJson::Value object;
  object.AddJsonValue("c", 1);
  object.AddJsonValue(std::string("s"), 2);
  object.Add(std::string("n"), VJson::Value());
  object.AddJsonValue("", 3);
  EXPECT_EQ(object.ToString(), R"({"c":1,"s":2,"n":{},"":3})");
}

TEST(VJsonTest, WritesEveryTypeToItsLimits) {
  EXPECT_EQ(WithMember(INT_MIN), R"({"v":-2147483648})");
  EXPECT_EQ(WithMember(INT_MAX), R"({"v":2147483647})");
  EXPECT_EQ(WithMember(UINT_MAX), R"({"v":4294967295})");
  EXPECT_EQ(WithMember(LONG_MIN), R"({"v":-9223372036854775808})");
  EXPECT_EQ(WithMember(LONG_MAX), R"({"v":9223372036854775807})");
  EXPECT_EQ(WithMember(ULONG_MAX), R"({"v":18446744073709551615})");
  EXPECT_EQ(WithMember(DBL_MAX), R"({"v":1.7976931348623157e+308})");
  EXPECT_EQ(WithMember(5e-324), R"({"v":5e-324})");
  EXPECT_EQ(WithMember(-0.0), R"({"v":-0})");
  EXPECT_EQ(WithMember(0.1 + 0.2), R"({"v":0.30000000000000004})");
  EXPECT_EQ(WithMember(1e22), R"({"v":1e+22})");
  EXPECT_EQ(WithMember(true), R"({"v":true})");
  EXPECT_EQ(WithMember(false), R"({"v":false})");
}

TEST(VJsonTest, WritesNullForWhatIsNoNumber) {
  EXPECT_EQ(WithMember(std::nan("")), R"({"v":null})");
  EXPECT_EQ(WithMember(std::numeric_limits<double>::infinity()), R"({"v":null})");
  EXPECT_EQ(WithMember(-std::numeric_limits<double>::infinity()), R"({"v":null})");
}

TEST(VJsonTest, EscapesKeysAndValues) {
  VJson::Value object;
  object.AddJsonValue("a\"\n", std::string("\\\x7F\0z", 4));
  object.Add("\t", VJson::Value());
  EXPECT_EQ(object.ToString(), R"({"a\"\n":"\\\u007f\u0000z","\t":{}})");
}

TEST(VJsonTest, RepairsIllFormedUtf8InKeysAndValues) {
  VJson::Value object;
  object.AddJsonValue("k\xE2\x82", "v\xC0\x80");
  EXPECT_EQ(object.ToString(), "{\"k\xEF\xBF\xBD\":\"v\xEF\xBF\xBD\xEF\xBF\xBD\"}");
}

TEST(VJsonTest, ParsesItsOwnTextWhateverWasPutIn) {
  std::string everyByte;
  for (int byte = 0; byte <= 0xFF; ++byte) {
    everyByte.push_back(static_cast<char>(byte));
  }
  VJson::Value object;
  object.AddJsonValue(everyByte, everyByte);
  object.AddJsonValue("d", DBL_MIN);
  object.AddJsonValue("n", std::nan(""));
  EXPECT_EQ(Parsed(object.ToString()).ToString(), object.ToString());
}

TEST(VJsonTest, NestingCopiesTheValue) {
  VJson::Value inner;
  inner.AddJsonValue("a", 1);
  VJson::Value outer;
  outer.Add("first", inner);
  inner.AddJsonValue("b", 2);
  outer.Add("second", inner);
  EXPECT_EQ(outer.ToString(), R"({"first":{"a":1},"second":{"a":1,"b":2}})");
}

TEST(VJsonTest, NestsValuesThatAreNoObjects) {
  VJson::Value outer;
  outer.Add("a", Parsed("[1,\"x\"]"));
  outer.Add("n", Parsed("null"));
  EXPECT_EQ(outer.ToString(), R"({"a":[1,"x"],"n":null})");
}

TEST(VJsonTest, AddsAValueToItself) {
  VJson::Value object;
  object.Add("empty", object);
  EXPECT_EQ(object.ToString(), R"({"empty":{}})");
  object.Add("self", object);
  EXPECT_EQ(object.ToString(), R"({"empty":{},"self":{"empty":{}}})");
}

TEST(VJsonTest, AddsNothingToAValueThatIsNoObject) {
  for (const std::string text : {"[]", "[1]", "1", "\"{\"", "true", "null"}) {
    VJson::Value value = Parsed(text);
    value.AddJsonValue("s", "text");
    value.AddJsonValue("i", 1);
    value.AddJsonValue("b", true);
    value.Add("v", VJson::Value());
    value.Add("self", value);
    EXPECT_EQ(value.ToString(), text);
  }
}

TEST(VJsonTest, AddsToAParsedObject) {
  VJson::Value object = Parsed(" { \"a\" : 2.50 } ");
  object.AddJsonValue("b", 1);
  EXPECT_EQ(object.ToString(), R"({"a":2.50,"b":1})");
  VJson::Value empty = Parsed(" { } ");
  empty.AddJsonValue("b", 1);
  EXPECT_EQ(empty.ToString(), R"({"b":1})");
}

TEST(VJsonTest, ACopyGoesItsOwnWay) {
  VJson::Value original;
  original.AddJsonValue("a", 1);
  VJson::Value copy = original;
  copy.AddJsonValue("b", 2);
  original.AddJsonValue("c", 3);
  EXPECT_EQ(copy.ToString(), R"({"a":1,"b":2})");
  EXPECT_EQ(original.ToString(), R"({"a":1,"c":3})");
  copy = original;
  EXPECT_EQ(copy.ToString(), R"({"a":1,"c":3})");
}

TEST(VJsonTest, AValueThatWasMovedFromCanBeUsed) {
  VJson::Value source;
  source.AddJsonValue("a", 1);
  const VJson::Value constructed = std::move(source);
  source.AddJsonValue("b", 2);
  EXPECT_EQ(constructed.ToString(), R"({"a":1})");
  EXPECT_EQ(source.ToString(), R"({"a":1,"b":2})");

  VJson::Value assigned;
  assigned = std::move(source);
  source.AddJsonValue("c", 3);
  EXPECT_EQ(assigned.ToString(), R"({"a":1,"b":2})");
  EXPECT_EQ(source.ToString(), R"({"a":1,"b":2,"c":3})");
}

TEST(VJsonTest, ToStringLeavesTheValueAsItIs) {
  VJson::Value object;
  object.AddJsonValue("a", 1);
  object.ToString();
  EXPECT_EQ(object.ToString(), R"({"a":1})");
}

TEST(VJsonTest, AUsualRecordAllocatesNothing) {
  const long before = AllocationFailure::Allocations();
  VJson::Value inner;
  inner.AddJsonValue("stepName", "Connect");
  VJson::Value outer;
  outer.Add("args", inner);
  outer.AddJsonValue("timestamp", 1700000000000UL);
  EXPECT_TRUE(inner.Parse("{ \"a\" : 1 }"));
  const VJson::Value copy = outer;
  EXPECT_EQ(AllocationFailure::Allocations(), before);
}

TEST(VJsonTest, AsksForMemorySeldomAsItGrows) {
  VJson::Value object;
  const long before = AllocationFailure::Allocations();
  for (int i = 0; i < 10'000; ++i) {
    object.AddJsonValue("key", i);  // About 120 KB in all.
  }
  EXPECT_LE(AllocationFailure::Allocations() - before, 10);
}

TEST(VJsonTest, GrowsByMembersOfAnyLength) {
  VJson::Value object;
  std::string expected = "{";
  for (const std::size_t length : {400U, 90U, 1U, 0U, 511U, 5000U, 60'000U, 2U}) {
    const std::string text(length, 'x');
    object.AddJsonValue(std::to_string(length), text);
    expected +=
        (expected == "{" ? "" : ",") + ("\"" + std::to_string(length)) + "\":\"" + text + "\"";
    ASSERT_EQ(object.ToString(), expected + "}");
  }
}

TEST(VJsonTest, ParseKeepsLettersAndOrderAndDropsWhiteSpace) {
  EXPECT_EQ(Parsed("\r\n{ \"b\" : [ 2.50 , 1e400 ,\n123456789012345678901234567890 ] ,\t"
                   "\"a\" : \"\\u0041\\/ \\t  x\", \"b\" : -0.0E+00 }\n")
                .ToString(),
            "{\"b\":[2.50,1e400,123456789012345678901234567890],"
            "\"a\":\"\\u0041\\/ \\t  x\",\"b\":-0.0E+00}");
}

TEST(VJsonTest, ParseTakesAScalar) {
  EXPECT_EQ(Parsed(" 2.50\n").ToString(), "2.50");
  EXPECT_EQ(Parsed("\"a b\"").ToString(), "\"a b\"");
  EXPECT_EQ(Parsed("null").ToString(), "null");
}

TEST(VJsonTest, ParseReplacesWhatWasThere) {
  VJson::Value value;
  value.AddJsonValue("a", 1);
  EXPECT_TRUE(value.Parse("[true]"));
  EXPECT_EQ(value.ToString(), "[true]");
}

TEST(VJsonTest, AFailedParseLeavesTheValueUnchanged) {
  VJson::Value value;
  value.AddJsonValue("a", 1);
  for (const std::string& text : {std::string(), std::string(" "), std::string("{\"b\":2,}"),
                                  std::string("{}\0", 3), std::string("{\"b\":\"\xC0\x80\"}")}) {
    EXPECT_FALSE(value.Parse(text)) << testing::PrintToString(text);
    EXPECT_EQ(value.ToString(), R"({"a":1})");
  }
}

TEST(VJsonTest, AFailedParseOfALongTextLeavesTheValueUnchanged) {
  const std::string text = "{\"a\":[1.5,\"" + std::string(1000, 'x') + "\"],}";
  VJson::Value value;
  value.AddJsonValue("a", 1);
  EXPECT_FALSE(value.Parse(text));
  value.AddJsonValue("b", 2);
  EXPECT_EQ(value.ToString(), R"({"a":1,"b":2})");
}

/// Makes each allocation of `change` fail in its turn, on a fresh copy of `initial` each time.
void ExpectUnchangedWhenMemoryRunsOut(const VJson::Value& initial,
                                      const std::function<void(VJson::Value&)>& change) {
  int failures = 0;
  for (bool failed = true; failed;) {
    VJson::Value value = initial;
    try {
      const AllocationFailure failure(failures + 1);
      change(value);
      failed = failure.Hits() != 0;
      ASSERT_FALSE(failed) << "a failure was swallowed";
    } catch (const std::bad_alloc&) {
      ++failures;
      ASSERT_EQ(value.ToString(), initial.ToString());
      value.AddJsonValue("later", 1);  // It can be used as before.
      ASSERT_NE(value.ToString().find("\"later\":1"), std::string::npos);
    }
  }
  EXPECT_GT(failures, 0);
}

VJson::Value WithMembers(int count) {
  VJson::Value object;
  for (int i = 0; i < count; ++i) {
    object.AddJsonValue("key" + std::to_string(i), i);
  }
  return object;
}

TEST(VJsonTest, AddingALongValueToItselfChangesNothingWhereMemoryRunsOut) {
  ExpectUnchangedWhenMemoryRunsOut(WithMembers(100),
                                   [](VJson::Value& value) { value.Add("self", value); });
}

/// The parameter tells how many members there are before.
class VJsonMemoryTest : public testing::TestWithParam<int> {
 protected:
  static VJson::Value Initial() { return WithMembers(GetParam()); }

  const std::string long_ = std::string(1000, '\n');
};

TEST_P(VJsonMemoryTest, AddingAStringChangesNothing) {
  ExpectUnchangedWhenMemoryRunsOut(Initial(),
                                   [this](VJson::Value& value) { value.AddJsonValue("k", long_); });
}

TEST_P(VJsonMemoryTest, AddingACStringChangesNothing) {
  ExpectUnchangedWhenMemoryRunsOut(
      Initial(), [this](VJson::Value& value) { value.AddJsonValue("k", long_.c_str()); });
}

TEST_P(VJsonMemoryTest, AddingUnderALongKeyChangesNothing) {
  ExpectUnchangedWhenMemoryRunsOut(Initial(),
                                   [this](VJson::Value& value) { value.AddJsonValue(long_, 1UL); });
  ExpectUnchangedWhenMemoryRunsOut(Initial(),
                                   [this](VJson::Value& value) { value.AddJsonValue(long_, -1); });
  ExpectUnchangedWhenMemoryRunsOut(Initial(),
                                   [this](VJson::Value& value) { value.AddJsonValue(long_, 0.5); });
  ExpectUnchangedWhenMemoryRunsOut(
      Initial(), [this](VJson::Value& value) { value.AddJsonValue(long_, true); });
}

TEST_P(VJsonMemoryTest, AddingAValueChangesNothing) {
  VJson::Value inner;
  inner.AddJsonValue("k", long_);
  ExpectUnchangedWhenMemoryRunsOut(Initial(),
                                   [&](VJson::Value& value) { value.Add("inner", inner); });
}

TEST_P(VJsonMemoryTest, ParsingThrowsAndChangesNothing) {
  const std::string text = "{\"k\":[" + std::string(1000, ' ') + "1.5]}" + std::string(1000, '\n');
  ExpectUnchangedWhenMemoryRunsOut(Initial(),
                                   [&](VJson::Value& value) { EXPECT_TRUE(value.Parse(text)); });
}

INSTANTIATE_TEST_SUITE_P(Members, VJsonMemoryTest, testing::Values(0, 1, 100));

TEST(VJsonTest, FollowsNoLocale) {
  const CommaLocale locale;
  std::ostringstream stream;
  stream << 1234567.5;
  ASSERT_EQ(stream.str(), "1,23457e+06");  // The C++ locale is as it should be,
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", 1234567.5);
  ASSERT_STREQ(text, "1234567,5");  // and so is that of C.

  VJson::Value object;
  object.AddJsonValue("d", 1234567.5);
  object.AddJsonValue("i", 1234567);
  object.AddJsonValue("u", 1234567U);
  object.AddJsonValue("l", -1234567L);
  object.AddJsonValue("ul", 1234567UL);
  object.AddJsonValue("b", true);
  EXPECT_EQ(object.ToString(),
            R"({"d":1234567.5,"i":1234567,"u":1234567,"l":-1234567,"ul":1234567,"b":true})");
  EXPECT_EQ(Parsed(R"([ 1234567.5 ])").ToString(), "[1234567.5]");
  EXPECT_FALSE(VJson::Value().Parse("1234567,5"));
}

}  // namespace
