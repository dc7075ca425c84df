#include <gmock/gmock.h>

#include <string>

#include "Records.h"
#include "Text.h"
#include "records/ValueType.h"

namespace vmetrics {
namespace {

using testing::Optional;

const ValueType& Type(const char* name) {
  const ValueType* type = FindValueType(name);
  EXPECT_NE(type, nullptr) << name;
  return *type;
}

/// What is packed says what was written.
void ExpectRoundTrip(const char* name, const std::string& value, const std::string& shown) {
  SCOPED_TRACE(name + (" " + value));
  const std::optional<std::string> bytes = Type(name).pack(value);
  ASSERT_TRUE(bytes);
  EXPECT_TRUE(Type(name).IsText() || bytes->size() == Type(name).width);
  EXPECT_EQ(Type(name).show(*bytes), shown);
}

TEST(ValueTypeTest, WhatIsPackedSaysWhatWasWritten) {
  for (const char* number : {"0", "-1", "60", "2147483647", "-2147483648"}) {
    ExpectRoundTrip("int", number, number);
    ExpectRoundTrip("int64_t", number, number);
    ExpectRoundTrip("enum", number,
                    number + std::string(", rendered as the text \"") + number + "\"");
  }
  ExpectRoundTrip("int64_t", "9223372036854775807", "9223372036854775807");
  ExpectRoundTrip("int64_t", "-9223372036854775808", "-9223372036854775808");
  ExpectRoundTrip("uint64_t", "18446744073709551615", "18446744073709551615");
  ExpectRoundTrip("double", "41.5", "41.5");
  ExpectRoundTrip("double", "0.1", "0.1");
  ExpectRoundTrip("double", "1e308", "1e+308");
  ExpectRoundTrip("double", "-0", "-0");
  ExpectRoundTrip("double", "nan", "nan, rendered as null");
  ExpectRoundTrip("double", "-inf", "-inf, rendered as null");
  ExpectRoundTrip("bool", "true", "true");
  ExpectRoundTrip("bool", "1", "true");
  ExpectRoundTrip("bool", "false", "false");
  ExpectRoundTrip("bool", "0", "false");
  ExpectRoundTrip("string", "", "\"\"");
  ExpectRoundTrip("string", "1920x1080", "\"1920x1080\"");
  ExpectRoundTrip("json", "{\"a\":[1,2]}", "\"{\"a\":[1,2]}\"");
}

TEST(ValueTypeTest, BytesAreThoseOfTheMachine) {
  EXPECT_THAT(Type("int").pack("60"), Optional(ValueBytes(60)));
  EXPECT_THAT(Type("uint64_t").pack("5368709120"), Optional(ValueBytes(5368709120UL)));
  EXPECT_THAT(Type("int64_t").pack("-7"), Optional(ValueBytes(-7L)));
  EXPECT_THAT(Type("double").pack("41.5"), Optional(ValueBytes(41.5)));
  EXPECT_THAT(Type("bool").pack("true"), Optional(std::string(1, '\1')));
  EXPECT_THAT(Type("enum").pack("3"), Optional(ValueBytes(3)));
}

TEST(ValueTypeTest, WhatIsOutOfRangeIsRefused) {
  for (const char* type : {"int", "enum"}) {
    EXPECT_FALSE(Type(type).pack("2147483648"));
    EXPECT_FALSE(Type(type).pack("-2147483649"));
  }
  EXPECT_FALSE(Type("uint64_t").pack("18446744073709551616"));
  EXPECT_FALSE(Type("uint64_t").pack("-1"));
  EXPECT_FALSE(Type("int64_t").pack("9223372036854775808"));
  EXPECT_FALSE(Type("int64_t").pack("-9223372036854775809"));
  EXPECT_FALSE(Type("double").pack("1e309"));
}

TEST(ValueTypeTest, WhatIsNoValueOfTheTypeIsRefused) {
  for (const char* type : {"int", "uint64_t", "int64_t", "double", "enum", "bool", "json"}) {
    for (const char* value : {"", "1x", "x", "+1", "0x10", "1,5", "TRUE"}) {
      EXPECT_FALSE(Type(type).pack(value)) << type << " " << value;
    }
  }
  for (const char* type : {"int", "uint64_t", "int64_t", "double", "enum", "bool"}) {
    EXPECT_FALSE(Type(type).pack(" 1")) << type;
    EXPECT_FALSE(Type(type).pack("1 ")) << type;
  }
  EXPECT_FALSE(Type("int").pack("1.0"));
  EXPECT_FALSE(Type("bool").pack("2"));
}

TEST(ValueTypeTest, AnyByteButZeroIsTrue) {
  EXPECT_EQ(Type("bool").show(std::string(1, '\x80')), "true");
}

TEST(ValueTypeTest, LongTextIsShownInPart) {
  EXPECT_EQ(Type("string").show(std::string(100, 'x')), "\"" + std::string(100, 'x') + "\"");
  EXPECT_EQ(Type("string").show(std::string(60000, 'x')),
            "\"" + std::string(99, 'x') + std::string(CutMark()) + "\"");
}

TEST(ValueTypeTest, TextIsFitForATerminal) {
  EXPECT_EQ(Type("string").show("\x1B[31m\n"), "\"\\u001b[31m\\n\"");
}

TEST(ValueTypeTest, NamesAreComparedWhole) {
  for (const char* name : {"", "Int", "int ", "integer", "float"}) {
    EXPECT_EQ(FindValueType(name), nullptr) << name;
  }
}

}  // namespace
}  // namespace vmetrics
