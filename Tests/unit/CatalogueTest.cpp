#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>
#include <string>
#include <vector>

#include "CatalogueTable.h"
#include "FrameworkTest.h"
#include "LoggedLine.h"

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kInvalid = -9999;

template <typename Map>
std::vector<std::string> Rows(const Map& catalogue) {
  std::vector<std::string> rows;
  for (const auto& [key, entry] : catalogue) {
    rows.push_back(CatalogueRow(key, entry));
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

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

// What is in the catalogue from the start ---------------------------------------------------------

using CatalogueTest = FrameworkTest;

TEST_F(CatalogueTest, HoldsTheBuiltInMetrics) {
  EXPECT_EQ(VMetrics::GetMetricsMap().size(), 121U);
  EXPECT_EQ(Rows(VMetrics::GetMetricsMap()), GoldenRows("numeric_catalogue.tsv"));
}

TEST_F(CatalogueTest, HoldsTheBuiltInEvents) {
  EXPECT_EQ(VMetrics::GetMetricsStringMap().size(), 13U);
  EXPECT_EQ(Rows(VMetrics::GetMetricsStringMap()), GoldenRows("string_catalogue.tsv"));
}

TEST_F(CatalogueTest, HandsOutTheLiveMaps) {
  EXPECT_EQ(&VMetrics::GetMetricsMap(), &VMetrics::GetMetricsMap());
  EXPECT_EQ(&VMetrics::GetMetricsStringMap(), &VMetrics::GetMetricsStringMap());
  VMetrics::GetMetricsMap()[770001] = {"int", "added", "0"};
  EXPECT_EQ(VMetrics::ToString(770001, "\x3C\0\0"), "{\"added\":60}");
}

TEST_F(CatalogueTest, StartsTheInputGroupAtIndexThree) {
  const MetricsMap& metrics = VMetrics::GetMetricsMap();
  EXPECT_EQ(metrics.count(0x130B0000), 0U);
  EXPECT_EQ(metrics.count(0x130B0001), 0U);
  EXPECT_EQ(metrics.count(0x130B0002), 0U);
  EXPECT_THAT(metrics.at(0x130B0003), ElementsAre("json", "inputRtt", "0"));
}

TEST_F(CatalogueTest, KeepsOnlyTheClientsPrinterListPrivate) {
  EXPECT_THAT(VMetrics::GetMetricsMap().at(0x170B0000), ElementsAre("string", "printerList", "1"));
  EXPECT_THAT(VMetrics::GetMetricsMap().at(0x170A0000), ElementsAre("string", "printerList", "0"));
}

TEST_F(CatalogueTest, EndsTheSystemGroupOfEachSideAtItsOwnIndex) {
  EXPECT_THAT(VMetrics::GetMetricsMap().at(0x2F0A000E),
              ElementsAre("string", "updateMoxStatus", "0"));
  EXPECT_EQ(VMetrics::GetMetricsMap().count(0x2F0B000E), 0U);
}

TEST_F(CatalogueTest, TellsUpperFromLowerCaseInEventIds) {
  const MetricsStringMap& events = VMetrics::GetMetricsStringMap();
  EXPECT_THAT(events.at("VMETRICS_USB_DRIVER_ERROR"), ElementsAre("string", "driverError", "0"));
  EXPECT_EQ(events.count("vmetrics_usb_driver_error"), 0U);
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

  /// The row under `key` in the catalogue that is registered to.
  MetricEntry Entry(const std::string& key) const {
    return GetParam().function == VMetrics::RegisterMetricsDataType
               ? VMetrics::GetMetricsMap().at(std::stoi(key))
               : VMetrics::GetMetricsStringMap().at(key);
  }

  /// What was logged is one error, `message`.
  void ExpectOnlyError(const std::string& message) const {
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(kVMetricsUnit, GetParam().name, 1, message)));
  }

  void ExpectOnlySuccess(const std::string& message) const {
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(
                    kVMetricsUnit, GetParam().name, 3,
                    "parse msg success, id = %s, type : %s, name : %s, private : %s", message)));
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
  EXPECT_THAT(Entry("770001"), ElementsAre("int", "a", "0"));
  ExpectOnlySuccess("parse msg success, id = 770001, type : int, name : a, private : 0");
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
  EXPECT_THAT(Entry("770001"), ElementsAre("int", "a", "0"));
}

TEST_P(RegistrationTest, CountsARunOfSeparatorsAsOne) {
  EXPECT_EQ(Register(";;770001;;int;;a;;0"), 0);
  EXPECT_THAT(Entry("770001"), ElementsAre("int", "a", "0"));
  ExpectOnlySuccess("parse msg success, id = 770001, type : int, name : a, private : 0");
}

TEST_P(RegistrationTest, IgnoresWhatFollowsTheFourthField) {
  EXPECT_EQ(Register("770001;int;a;0;junk;more"), 0);
  EXPECT_THAT(Entry("770001"), ElementsAre("int", "a", "0"));
  ExpectOnlySuccess("parse msg success, id = 770001, type : int, name : a, private : 0");
}

TEST_P(RegistrationTest, ChecksNeitherTypeNorFlag) {
  EXPECT_EQ(Register("770001;foo; a b ;yes"), 0);
  EXPECT_THAT(Entry("770001"), ElementsAre("foo", " a b ", "yes"));
  ExpectOnlySuccess("parse msg success, id = 770001, type : foo, name :  a b , private : yes");
}

TEST_P(RegistrationTest, TakesPercentSignsForText) {
  EXPECT_EQ(Register("770001;%s;%n;%d"), 0);
  EXPECT_THAT(Entry("770001"), ElementsAre("%s", "%n", "%d"));
  ExpectOnlySuccess("parse msg success, id = 770001, type : %s, name : %n, private : %d");
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
                ElementsAre(LoggedLine(
                    kVMetricsUnit, "RegisterMetricsDataType", 3,
                    "parse msg success, id = %s, type : %s, name : %s, private : %s",
                    "parse msg success, id = "s + id + ", type : int, name : a, private : 0")));
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
    EXPECT_THAT(FakePlatform::LogLines(),
                ElementsAre(LoggedLine(
                    kVMetricsUnit, "RegisterMetricsStringDataType", 3,
                    "parse msg success, id = %s, type : %s, name : %s, private : %s",
                    "parse msg success, id = " + id + ", type : json, name : x, private : 0")));
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

// Where failures come from ------------------------------------------------------------------------

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

}  // namespace
