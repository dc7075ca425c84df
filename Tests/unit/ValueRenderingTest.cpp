#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <limits>
#include <string>

#include "FrameworkTest.h"
#include "GuardedBytes.h"
#include "LoggedLine.h"
#include "Records.h"
#include "VMetrics/ValueRendering.h"

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kMetric = 770001;
constexpr char kEvent[] = "VALUE_RENDERING_TEST";
constexpr const char* kFixedWidthTypes[] = {"int", "uint64_t", "int64_t", "double", "bool", "enum"};

class ValueRenderingTest : public FrameworkTest {
 protected:
  static void Describe(const MetricEntry& entry) {
    VMetrics::GetMetricsMap()[kMetric] = entry;
    VMetrics::GetMetricsStringMap()[kEvent] = entry;
  }

  /// What both overloads make of `bytes`, behind which nothing can be read.
  static std::string Rendered(const MetricEntry& entry, const std::string& bytes) {
    Describe(entry);
    const GuardedBytes value(bytes);
    std::string text = VMetrics::ToString(kMetric, value.Data());
    EXPECT_EQ(VMetrics::ToString(kEvent, value.Data()), text);
    EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
    return text;
  }

  template <typename Value>
  static std::string RenderedNumber(const char* type, Value value) {
    return Rendered({type, "n", "0"}, ValueBytes(value));
  }

  static std::string RenderedText(const char* type, const std::string& text) {
    return Rendered({type, "n", "0"}, text + '\0');
  }
};

// The types ---------------------------------------------------------------------------------------

TEST_F(ValueRenderingTest, RendersTheFramesPerSecond) {
  const GuardedBytes value("\x3C\0\0\0"s);
  EXPECT_EQ(VMetrics::ToString(302710785, value.Data()), "{\"displayFPS\":60}");
}

TEST_F(ValueRenderingTest, RendersTheDriverError) {
  EXPECT_EQ(VMetrics::ToString("VMETRICS_USB_DRIVER_ERROR", "Init drivers error."),
            "{\"driverError\":\"Init drivers error.\"}");
}

TEST_F(ValueRenderingTest, RendersAStringUpToItsEnd) {
  EXPECT_EQ(RenderedText("string", ""), R"({"n":""})");
  EXPECT_EQ(RenderedText("string", "text"), R"({"n":"text"})");
  EXPECT_EQ(RenderedText("string", "text\0behind"s), R"({"n":"text"})");
  EXPECT_EQ(RenderedText("string", "自动"), R"({"n":"自动"})");
}

TEST_F(ValueRenderingTest, KeepsAStringOnOneLineOfValidJson) {
  EXPECT_EQ(RenderedText("string", "a\"b\\c\n\r\t\x01\x7F%s%n"),
            R"({"n":"a\"b\\c\n\r\t\u0001\u007f%s%n"})");
  EXPECT_EQ(RenderedText("string", "a\xFF\xC3(\xED\xA0\x80"),
            "{\"n\":\"a\uFFFD\uFFFD(\uFFFD\uFFFD\uFFFD\"}");
}

TEST_F(ValueRenderingTest, RendersAnIntAsASignedNumber) {
  EXPECT_EQ(RenderedNumber("int", 0), R"({"n":0})");
  EXPECT_EQ(RenderedNumber("int", 60), R"({"n":60})");
  EXPECT_EQ(RenderedNumber("int", -1), R"({"n":-1})");
  EXPECT_EQ(RenderedNumber("int", INT_MAX), R"({"n":2147483647})");
  EXPECT_EQ(RenderedNumber("int", INT_MIN), R"({"n":-2147483648})");
}

TEST_F(ValueRenderingTest, RendersAUint64AsAnUnsignedNumber) {
  EXPECT_EQ(RenderedNumber("uint64_t", std::uint64_t{0}), R"({"n":0})");
  EXPECT_EQ(RenderedNumber("uint64_t", std::uint64_t{1} << 63), R"({"n":9223372036854775808})");
  EXPECT_EQ(RenderedNumber("uint64_t", UINT64_MAX), R"({"n":18446744073709551615})");
}

TEST_F(ValueRenderingTest, RendersAnInt64AsASignedNumber) {
  EXPECT_EQ(RenderedNumber("int64_t", std::int64_t{-1}), R"({"n":-1})");
  EXPECT_EQ(RenderedNumber("int64_t", INT64_MAX), R"({"n":9223372036854775807})");
  EXPECT_EQ(RenderedNumber("int64_t", INT64_MIN), R"({"n":-9223372036854775808})");
}

TEST_F(ValueRenderingTest, RendersADoubleAsItsShortestNumber) {
  EXPECT_EQ(RenderedNumber("double", 0.0), R"({"n":0})");
  EXPECT_EQ(RenderedNumber("double", -0.0), R"({"n":-0})");
  EXPECT_EQ(RenderedNumber("double", 12.5), R"({"n":12.5})");
  EXPECT_EQ(RenderedNumber("double", 0.1), R"({"n":0.1})");
  EXPECT_EQ(RenderedNumber("double", 1.0 / 3), R"({"n":0.3333333333333333})");
  EXPECT_EQ(RenderedNumber("double", 1234567.0), R"({"n":1234567})");
  EXPECT_EQ(RenderedNumber("double", -1e300), R"({"n":-1e+300})");
  EXPECT_EQ(RenderedNumber("double", 5e-324), R"({"n":5e-324})");
}

TEST_F(ValueRenderingTest, RendersADoubleThatIsNoNumberAsNull) {
  using Limits = std::numeric_limits<double>;
  EXPECT_EQ(RenderedNumber("double", Limits::quiet_NaN()), R"({"n":null})");
  EXPECT_EQ(RenderedNumber("double", -Limits::quiet_NaN()), R"({"n":null})");
  EXPECT_EQ(RenderedNumber("double", Limits::infinity()), R"({"n":null})");
  EXPECT_EQ(RenderedNumber("double", -Limits::infinity()), R"({"n":null})");
}

TEST_F(ValueRenderingTest, RendersABoolFromItsOneByte) {
  EXPECT_EQ(Rendered({"bool", "n", "0"}, "\0"s), R"({"n":false})");
  EXPECT_EQ(Rendered({"bool", "n", "0"}, "\x01"), R"({"n":true})");
  EXPECT_EQ(Rendered({"bool", "n", "0"}, "\0\x01"s), R"({"n":false})");
}

TEST_F(ValueRenderingTest, TakesEveryOtherBoolForTrue) {
  EXPECT_EQ(Rendered({"bool", "n", "0"}, "\x02"), R"({"n":true})");
  EXPECT_EQ(Rendered({"bool", "n", "0"}, "\xFF"), R"({"n":true})");
}

TEST_F(ValueRenderingTest, RendersAnEnumAsTheTextOfItsNumber) {
  EXPECT_EQ(RenderedNumber("enum", 60), R"({"n":"60"})");
  EXPECT_EQ(RenderedNumber("enum", 0), R"({"n":"0"})");
  EXPECT_EQ(RenderedNumber("enum", INT_MAX), R"({"n":"2147483647"})");
  EXPECT_EQ(RenderedNumber("enum", INT_MIN), R"({"n":"-2147483648"})");
}

TEST_F(ValueRenderingTest, ReturnsAJsonValueAsItStands) {
  for (const std::string text :
       {"{\"a\": 1}", "", "60", " [ ] ", "{\n}", "not JSON", "{\"a\":", "\xFF\x01%s"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(RenderedText("json", text), text);
  }
  EXPECT_EQ(RenderedText("json", "{}\0behind"s), "{}");
}

TEST_F(ValueRenderingTest, RendersAnUnknownTypeAsTheEmptyObject) {
  for (const char* type : {"Int", "INT", "", "int ", " int", "uint64", "float", "Json", "strin"}) {
    SCOPED_TRACE(type);
    EXPECT_EQ(RenderedText(type, "text"), "{}");
  }
}

TEST_F(ValueRenderingTest, ReadsNoByteForAnUnknownType) {
  EXPECT_EQ(Rendered({"Int", "n", "0"}, ""), "{}");
}

TEST_F(ValueRenderingTest, ReadsADoublesEightBytesWhateverFollows) {
  EXPECT_EQ(Rendered({"double", "n", "0"}, ValueBytes(12.5) + "\xFF\xFF"), R"({"n":12.5})");
}

TEST_F(ValueRenderingTest, ReadsAValueAtAnyAddress) {
  alignas(8) char bytes[16];
  for (std::size_t offset = 0; offset < 8; ++offset) {
    const std::string value = ValueBytes(12.5);
    value.copy(bytes + offset, value.size());
    Describe({"double", "n", "0"});
    EXPECT_EQ(VMetrics::ToString(kMetric, bytes + offset), R"({"n":12.5})") << offset;
  }
}

// The entries -------------------------------------------------------------------------------------

TEST_F(ValueRenderingTest, RendersAPrivateMetricLikeAPublicOne) {
  EXPECT_EQ(Rendered({"int", "n", "1"}, ValueBytes(60)), R"({"n":60})");
}

TEST_F(ValueRenderingTest, EscapesTheNameLikeAnyText) {
  EXPECT_EQ(Rendered({"int", "a\"%s\n", "0"}, ValueBytes(60)), R"({"a\"%s\n":60})");
  EXPECT_EQ(Rendered({"int", "", "0"}, ValueBytes(60)), R"({"":60})");
}

TEST_F(ValueRenderingTest, WantsOnlyTypeAndNameOfAnEntry) {
  EXPECT_EQ(Rendered({"int", "n"}, ValueBytes(60)), R"({"n":60})");
  EXPECT_EQ(Rendered({"int", "n", "0", "more"}, ValueBytes(60)), R"({"n":60})");
}

TEST_F(ValueRenderingTest, RendersNothingForAnEntryWithoutItsTexts) {
  EXPECT_EQ(Rendered({}, ""), "");
  EXPECT_EQ(Rendered({"int"}, ""), "");
  EXPECT_EQ(Rendered({"json"}, ""), "");
}

TEST_F(ValueRenderingTest, RendersNothingForAnIdThatIsNotInTheCatalogue) {
  EXPECT_EQ(VMetrics::ToString(770002, "\x3C\0\0"), "");
  EXPECT_EQ(VMetrics::ToString(0, "\x3C\0\0"), "");
  EXPECT_EQ(VMetrics::ToString("NOX_USER_CONNECT", "{}"), "");
  EXPECT_EQ(VMetrics::ToString("", "{}"), "");
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_TRUE(CatalogueIsUnchanged());
}

// What fails --------------------------------------------------------------------------------------

TEST_F(ValueRenderingTest, WarnsOfANullPointer) {
  const auto warning = LoggedLine(kVMetricsUnit, "ToString", 2, "str is NULL");
  EXPECT_EQ(VMetrics::ToString(302710785, nullptr), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(warning));
  EXPECT_EQ(VMetrics::ToString("nox_user_connect", nullptr), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(warning, warning));
  EXPECT_EQ(VMetrics::ToString(nullptr, "{}"), "");
  EXPECT_EQ(VMetrics::ToString(nullptr, nullptr), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(warning, warning, warning, warning));
}

TEST_F(ValueRenderingTest, RendersNoNullPointerOfAMetricWhoseTextIsReturnedAsItStands) {
  EXPECT_EQ(VMetrics::GetMetricsMap().at(0x120A0009)[0], "json");
  EXPECT_EQ(VMetrics::ToString(0x120A0009, nullptr), "");
}

TEST_F(ValueRenderingTest, WarnsOfANullPointerBeforeItLooksTheIdUp) {
  EXPECT_EQ(VMetrics::ToString(770002, nullptr), "");
  EXPECT_EQ(VMetrics::ToString("absent", nullptr), "");
  EXPECT_EQ(FakePlatform::LogLines().size(), 2U);
}

TEST_F(ValueRenderingTest, WarnsWithALineOfItsOwnInEachOverload) {
  VMetrics::ToString(770002, nullptr);
  VMetrics::ToString("absent", nullptr);
  ASSERT_EQ(FakePlatform::LogLines().size(), 2U);
  EXPECT_NE(FakePlatform::LogLines()[0].line, FakePlatform::LogLines()[1].line);
}

TEST_F(ValueRenderingTest, RendersNothingWhenTheCopyIsRefused) {
  const GuardedBytes value(std::string(8, '\0'));
  for (const char* type : kFixedWidthTypes) {
    SCOPED_TRACE(type);
    Describe({type, "n", "0"});
    FakePlatform::FailCopy(1);
    EXPECT_EQ(VMetrics::ToString(kMetric, value.Data()), "");
    FakePlatform::FailCopy(1);
    EXPECT_EQ(VMetrics::ToString(kEvent, value.Data()), "");
  }
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(ValueRenderingTest, CopiesAValueOfAFixedWidthOnce) {
  const GuardedBytes value(std::string(8, '\0'));
  for (const char* type : kFixedWidthTypes) {
    SCOPED_TRACE(type);
    Describe({type, "n", "0"});
    FakePlatform::FailCopy(2);
    EXPECT_NE(VMetrics::ToString(kMetric, value.Data()), "");
  }
}

// Inside the library ------------------------------------------------------------------------------

/// Renders a copy of `bytes` that is padded as records are.
bool RenderPadded(const MetricEntry& entry, std::string bytes, VJson::Value& value) {
  bytes.resize(bytes.size() + vmetrics::kWidestValue);
  return vmetrics::RenderValue(entry, bytes, value);
}

TEST_F(ValueRenderingTest, MakesAValueOfAJsonText) {
  VJson::Value value;
  EXPECT_TRUE(RenderPadded({"json", "n", "0"}, "{ \"a\" : [1] }", value));
  EXPECT_EQ(value.ToString(), R"({"a":[1]})");
}

TEST_F(ValueRenderingTest, CutsAJsonTextAtItsEnd) {
  VJson::Value value;
  std::string bytes = "[1]\0behind"s;
  EXPECT_TRUE(vmetrics::RenderValue({"json", "n", "0"}, bytes, value));
  EXPECT_EQ(value.ToString(), "[1]");
  EXPECT_EQ(bytes, "[1]");
}

TEST_F(ValueRenderingTest, LeavesTheValueEmptyWhereThereIsNothingToRender) {
  VJson::Value value;
  EXPECT_FALSE(RenderPadded({"json", "n", "0"}, "not JSON", value));
  EXPECT_FALSE(RenderPadded({"json", "n", "0"}, "", value));
  EXPECT_FALSE(RenderPadded({"json"}, "{\"a\":1}", value));
  EXPECT_FALSE(RenderPadded({}, "", value));
  FakePlatform::FailCopy(1);
  EXPECT_FALSE(RenderPadded({"int", "n", "0"}, ValueBytes(60), value));
  EXPECT_EQ(value.ToString(), "{}");
}

TEST_F(ValueRenderingTest, MakesAnEmptyValueOfAnUnknownType) {
  VJson::Value value;
  EXPECT_TRUE(RenderPadded({"Int", "n", "0"}, ValueBytes(60), value));
  EXPECT_EQ(value.ToString(), "{}");
}

}  // namespace
