// The definitions that other components add to the catalogue as text.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <set>
#include <string>
#include <vector>

#include "FrameworkTest.h"
#include "LoggedLine.h"

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kInvalid = -9999;

/// A registration and what it left of the definition.
struct Registration {
  int status;
  std::string buffer;  ///< Without the terminator that the definition had.
};

Registration Register(int (*function)(char*), const std::string& definition) {
  std::vector<char> buffer(definition.c_str(), definition.c_str() + definition.size() + 1);
  const int status = function(buffer.data());
  return {status, std::string(buffer.data(), definition.size())};
}

int RegisterMetric(const std::string& definition) {
  return Register(VMetrics::RegisterMetricsDataType, definition).status;
}

int RegisterEvent(const std::string& definition) {
  return Register(VMetrics::RegisterMetricsStringDataType, definition).status;
}

/// The line of a registration that succeeded.
testing::Matcher<const FakePlatform::LogLine&> LoggedRegistration(const std::string& function,
                                                                  const std::string& id,
                                                                  const std::string& type,
                                                                  const std::string& name,
                                                                  const std::string& privateFlag) {
  return LoggedLine(kVMetricsUnit, function, 3,
                    "parse msg success, id = %s, type : %s, name : %s, private : %s",
                    "parse msg success, id = " + id + ", type : " + type + ", name : " + name +
                        ", private : " + privateFlag);
}

// What both registrations do alike ----------------------------------------------------------------

struct Registrar {
  const char* name;
  int (*function)(char*);
};

class RegistrationTest : public FrameworkTest, public testing::WithParamInterface<Registrar> {
 protected:
  int Register(const std::string& definition) {
    return ::Register(GetParam().function, definition).status;
  }

  std::string BufferAfter(const std::string& definition) {
    return ::Register(GetParam().function, definition).buffer;
  }

  /// The entry under 770001 in the map that is registered to.
  MetricEntry Entry() const {
    return GetParam().function == VMetrics::RegisterMetricsDataType
               ? VMetrics::GetMetricsMap().at(770001)
               : VMetrics::GetMetricsStringMap().at("770001");
  }

  /// What was logged is one error, `message`.
  void ExpectOnlyError(const std::string& message) const {
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(kVMetricsUnit, GetParam().name, 1, message)));
  }

  /// The entry under 770001 holds these texts, and the one line logged tells so.
  void ExpectStored(const std::string& type, const std::string& name,
                    const std::string& privateFlag) const {
    EXPECT_THAT(Entry(), ElementsAre(type, name, privateFlag));
    EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(LoggedRegistration(GetParam().name, "770001",
                                                                         type, name, privateFlag)));
  }
};

INSTANTIATE_TEST_SUITE_P(
    Both, RegistrationTest,
    testing::Values(Registrar{"RegisterMetricsDataType", VMetrics::RegisterMetricsDataType},
                    Registrar{"RegisterMetricsStringDataType",
                              VMetrics::RegisterMetricsStringDataType}),
    [](const testing::TestParamInfo<Registrar>& registrar) { return registrar.param.name; });

TEST_P(RegistrationTest, RefusesNull) {
  EXPECT_EQ(GetParam().function(nullptr), kInvalid);
  ExpectOnlyError("msg is null");
  EXPECT_TRUE(CatalogueIsUnchanged());
}

TEST_P(RegistrationTest, RefusesADefinitionThatLacksFields) {
  for (const char* definition : {"", ";", ";;;;", "770001", "770001;", "770001;int", "770001;int;a",
                                 "770001;int;a;", ";770001;;int;;a;;;"}) {
    SCOPED_TRACE(definition);
    FakePlatform::Reset();
    EXPECT_EQ(Register(definition), kInvalid);
    ExpectOnlyError("strtok_s parse failed");
    EXPECT_TRUE(CatalogueIsUnchanged());
  }
}

TEST_P(RegistrationTest, StoresTheThreeTexts) {
  EXPECT_EQ(Register("770001;int;a;0"), 0);
  ExpectStored("int", "a", "0");
}

TEST_P(RegistrationTest, AddsToItsOwnMapOnly) {
  const std::size_t before =
      VMetrics::GetMetricsMap().size() + VMetrics::GetMetricsStringMap().size();
  EXPECT_EQ(Register("770001;int;a;0"), 0);
  EXPECT_EQ(VMetrics::GetMetricsMap().size() + VMetrics::GetMetricsStringMap().size(), before + 1);
}

TEST_P(RegistrationTest, KeepsTheEntryThatIsThere) {
  ASSERT_EQ(Register("770001;int;a;0"), 0);
  FakePlatform::Reset();
  EXPECT_EQ(Register("770001;string;b;1"), kInvalid);
  ExpectOnlyError("msg id invalid or has existed");
  EXPECT_THAT(Entry(), ElementsAre("int", "a", "0"));
}

TEST_P(RegistrationTest, CountsARunOfSeparatorsAsOne) {
  EXPECT_EQ(Register(";;770001;;int;;a;;0"), 0);
  ExpectStored("int", "a", "0");
}

TEST_P(RegistrationTest, SeparatesFieldsAtNothingElse) {
  EXPECT_EQ(Register("770001;u,i:n\tt;a|b/c\n;0 1"), 0);
  ExpectStored("u,i:n\tt", "a|b/c\n", "0 1");
}

TEST_P(RegistrationTest, IgnoresWhatFollowsTheFourthField) {
  EXPECT_EQ(Register("770001;int;a;0;junk;more"), 0);
  ExpectStored("int", "a", "0");
}

TEST_P(RegistrationTest, ChecksNeitherTypeNorFlag) {
  EXPECT_EQ(Register("770001;foo; a b ;yes"), 0);
  ExpectStored("foo", " a b ", "yes");
}

TEST_P(RegistrationTest, TakesPercentSignsForText) {
  EXPECT_EQ(Register("770001;%s;%n;%d"), 0);
  ExpectStored("%s", "%n", "%d");
}

TEST_P(RegistrationTest, CutsTheCallersTextWhereItReadIt) {
  EXPECT_EQ(BufferAfter("770001;int;a;0"), "770001\0int\0a\0000"s);
  EXPECT_EQ(BufferAfter("770002;int;a;0;"), "770002\0int\0a\0000\0"s);
  EXPECT_EQ(BufferAfter("770003;int;a;0;junk;more"), "770003\0int\0a\0000\0junk;more"s);
  EXPECT_EQ(BufferAfter(";;770004;;int;;a;;0"), ";;770004\0;int\0;a\0;0"s);
}

TEST_P(RegistrationTest, CutsTheCallersTextAlsoWhenItRefuses) {
  EXPECT_EQ(BufferAfter(""), "");
  EXPECT_EQ(BufferAfter(";;;"), ";;;");
  EXPECT_EQ(BufferAfter("770001;int;a"), "770001\0int\0a"s);
  EXPECT_EQ(BufferAfter("770001;;int;"), "770001\0;int\0"s);
  ASSERT_EQ(Register("770001;int;a;0"), 0);
  EXPECT_EQ(BufferAfter("770001;int;a;0"), "770001\0int\0a\0000"s);
}

TEST_P(RegistrationTest, LogsEachFailureWithALineOfItsOwn) {
  GetParam().function(nullptr);
  Register("");
  ASSERT_EQ(Register("770001;int;a;0"), 0);
  Register("770001;int;a;0");
  const std::vector<FakePlatform::LogLine>& logged = FakePlatform::LogLines();
  ASSERT_EQ(logged.size(), 4U);
  std::set<int> lines;
  for (const FakePlatform::LogLine& line : logged) {
    lines.insert(line.line);
  }
  EXPECT_EQ(lines.size(), 4U);
}

// What is a metric's ID ---------------------------------------------------------------------------

using MetricRegistrationTest = FrameworkTest;

TEST_F(MetricRegistrationTest, ReadsTheIdAsADecimalNumber) {
  struct Case {
    const char* id;
    int key;
  };
  for (const auto& [id, key] : {Case{"1", 1},
                                {"302645266", 0x120A0012},
                                {"-5", -5},
                                {"+7", 7},
                                {" \t\n7", 7},
                                {"007", 7},
                                {"12xyz", 12},
                                {"7.9", 7},
                                {"2147483647", INT_MAX},
                                {"-2147483648", INT_MIN},
                                {"2147483648", INT_MIN},
                                {"4294967295", -1},
                                {"4294967297", 1},
                                {"-4294967297", -1},
                                {"99999999999999999999", -1}}) {
    SCOPED_TRACE(id);
    RestoreCatalogue();
    FakePlatform::Reset();
    EXPECT_EQ(RegisterMetric(id + ";int;a;0"s), 0);
    EXPECT_THAT(VMetrics::GetMetricsMap().at(key), ElementsAre("int", "a", "0"));
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedRegistration("RegisterMetricsDataType", id, "int", "a", "0")));
  }
}

TEST_F(MetricRegistrationTest, RefusesAnIdWhoseLow32BitsAreZero) {
  for (const char* id : {"0", "-0", "+", "-", " ", "abc", "0x11", "x1", "4294967296", "-4294967296",
                         "8589934592", "-99999999999999999999"}) {
    SCOPED_TRACE(id);
    FakePlatform::Reset();
    EXPECT_EQ(RegisterMetric(id + ";int;a;0"s), kInvalid);
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(kVMetricsUnit, "RegisterMetricsDataType", 1,
                                       "msg id invalid or has existed")));
    EXPECT_TRUE(CatalogueIsUnchanged());
  }
}

TEST_F(MetricRegistrationTest, ComparesOnlyTheLow32BitsOfAnId) {
  ASSERT_EQ(RegisterMetric("770001;int;a;0"), 0);
  EXPECT_EQ(RegisterMetric("4295737297;string;b;1"), kInvalid);  // 2^32 + 770001.
  EXPECT_THAT(VMetrics::GetMetricsMap().at(770001), ElementsAre("int", "a", "0"));
}

TEST_F(MetricRegistrationTest, RefusesEveryBuiltInId) {
  const MetricsMap builtIn = VMetrics::GetMetricsMap();
  for (const auto& row : builtIn) {
    const std::string id = std::to_string(row.first);
    SCOPED_TRACE(id);
    FakePlatform::Reset();
    EXPECT_EQ(RegisterMetric(id + ";bool;x;1"), kInvalid);
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(kVMetricsUnit, "RegisterMetricsDataType", 1,
                                       "msg id invalid or has existed")));
  }
  EXPECT_TRUE(CatalogueIsUnchanged());
}

TEST_F(MetricRegistrationTest, FindsAnEntryWithoutTextsTaken) {
  VMetrics::GetMetricsMap()[770001];
  EXPECT_EQ(RegisterMetric("770001;int;a;0"), kInvalid);
  EXPECT_THAT(VMetrics::GetMetricsMap().at(770001), IsEmpty());
}

// What is an event's ID ---------------------------------------------------------------------------

using EventRegistrationTest = FrameworkTest;

TEST_F(EventRegistrationTest, TakesAnyTextForAnId) {
  for (const std::string id : {"0", "abc", "4294967296", " 1", "NOX_USER_CONNECT",
                               "nox_user_connect ", "nox_user", "\xE8\x87\xAA", "%s"}) {
    SCOPED_TRACE(id);
    FakePlatform::Reset();
    EXPECT_EQ(RegisterEvent(id + ";json;x;0"), 0);
    EXPECT_THAT(VMetrics::GetMetricsStringMap().at(id), ElementsAre("json", "x", "0"));
    EXPECT_THAT(
        FakePlatform::LogLines(),
        ElementsAre(LoggedRegistration("RegisterMetricsStringDataType", id, "json", "x", "0")));
  }
}

TEST_F(EventRegistrationTest, RefusesEveryBuiltInId) {
  const MetricsStringMap builtIn = VMetrics::GetMetricsStringMap();
  for (const auto& row : builtIn) {
    SCOPED_TRACE(row.first);
    FakePlatform::Reset();
    EXPECT_EQ(RegisterEvent(row.first + ";bool;x;1"), kInvalid);
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(kVMetricsUnit, "RegisterMetricsStringDataType", 1,
                                       "msg id invalid or has existed")));
  }
  EXPECT_TRUE(CatalogueIsUnchanged());
}

}  // namespace
