// The library lives in hosts that set what locale they like. Its texts are for machines and stay
// the same to the letter.

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>
#include <string>

#include "CommaLocale.h"
#include "FrameworkTest.h"
#include "LoggedLine.h"
#include "RecordRenderers.h"

namespace {

constexpr int kMetric = 7700001;

class HostLocaleTest : public FrameworkTest {
 protected:
  /// How metric kMetric renders when it is of this type.
  template <typename Value>
  static std::string Rendered(const char* type, Value value) {
    VMetrics::GetMetricsMap()[kMetric] = {type, "n", "0"};
    return VMetrics::ToString(kMetric, GuardedBytes(ValueBytes(value)).Data());
  }

 private:
  const CommaLocale locale_;
};

TEST_F(HostLocaleTest, IsInForce) {
  std::ostringstream text;
  text << 1234567 << ' ' << std::fixed << 1234567.5;
  EXPECT_EQ(text.str(), "1.234.567 1.234.567,500000");
  char textOfC[32];
  std::snprintf(textOfC, sizeof textOfC, "%.1f", 1234567.5);
  EXPECT_STREQ(textOfC, "1234567,5");
}

TEST_F(HostLocaleTest, LeavesValuesAlone) {
  EXPECT_EQ(Rendered("double", 1234567.5), R"({"n":1234567.5})");
  EXPECT_EQ(Rendered("double", 0.1), R"({"n":0.1})");
  EXPECT_EQ(Rendered("double", 1e300), R"({"n":1e+300})");
  EXPECT_EQ(Rendered("int", -1234567), R"({"n":-1234567})");
  EXPECT_EQ(Rendered("uint64_t", 18446744073709551615U), R"({"n":18446744073709551615})");
  EXPECT_EQ(Rendered("int64_t", -1234567890123L), R"({"n":-1234567890123})");
  EXPECT_EQ(Rendered("enum", 1234567), R"({"n":"1234567"})");
  EXPECT_EQ(Rendered("bool", true), R"({"n":true})");
}

TEST_F(HostLocaleTest, LeavesNumericRecordsAlone) {
  VMetrics::GetMetricsMap()[kMetric] = {"double", "n", "0"};
  EXPECT_EQ(RenderNumeric(NumericRecord(1234567, 7700001, ValueBytes(1234567.5))),
            R"({"eventId":"7700001","timestamp":1700000000000,"moduleId":117,)"
            R"("terminalId":"1234567","args":{"n":1234567.5}})");
  EXPECT_EQ(RenderMessage(NumericRecord(4293732729, 4293732729, "")),
            R"({"eventId":"-1234567","timestamp":1700000000000,"moduleId":65517,)"
            R"("terminalId":"-1234567"})");
}

TEST_F(HostLocaleTest, LeavesStringRecordsAlone) {
  TextRecord record;
  record.terminalId = 1234567;
  record.type = 7654321;
  record.eventId = "nox_user_connect";
  record.value = "{\"n\": 1234567.5}";
  EXPECT_EQ(RenderCheckedText(record),
            R"({"eventId":"nox_user_connect","timestamp":1700000000000,"terminalId":"1234567",)"
            R"("type":"7654321","transactionId":"","businessType":"","serviceName":"",)"
            R"("userName":"","args":{"n":1234567.5}})");
}

TEST_F(HostLocaleTest, LeavesReportsAlone) {
  EXPECT_EQ(SendConnectVagToMetric(1699998765433, 1234567), 0);
  ExpectOnlyEmitted(R"({"eventId":"nox_user_connect","timestamp":1700000000000,"terminalId":"0",)"
                    R"("type":"2","transactionId":"","businessType":"","serviceName":"zelviewer",)"
                    R"("userName":"","args":{"stepName":"FirstPack","source":"zelviewer",)"
                    R"("parentStepName":"Connect","isSuccess":1234567,"startTime":1699998765433,)"
                    R"("endTime":1700000000000,"usedTime":1234567}})");
}

TEST_F(HostLocaleTest, LeavesTheReportOfASlowModuleAlone) {
  const GuardedBytes message(Message(1234567, -1234567, 7654321));
  EXPECT_EQ(SendModuleProcessTimeoutMetric("m", "n", message.As<VMessage>(), 4294967295), 0);
  ExpectOnlyEmitted(
      R"({"eventId":"VEVENT_MSG_PROCESS_SLOW","timestamp":1700000000000,"terminalId":"0",)"
      R"("type":"0","transactionId":"","businessType":"","serviceName":"","userName":"",)"
      R"("args":{"moduleName":"m","name":"n","msgSrcModuleId":1234567,)"
      R"("msgDstModuleId":-1234567,"msgType":7654321,"cost":4294967295}})");
}

TEST_F(HostLocaleTest, LeavesDefinitionsAlone) {
  char definition[] = "7700001;int;n;0";
  EXPECT_EQ(VMetrics::RegisterMetricsDataType(definition), 0);
  EXPECT_EQ(VMetrics::GetMetricsMap().count(7700001), 1U);
  ExpectOnlyLogged(
      LoggedLine(kVMetricsUnit, "RegisterMetricsDataType", 3,
                 "parse msg success, id = %s, type : %s, name : %s, private : %s",
                 "parse msg success, id = 7700001, type : int, name : n, private : 0"));
}

TEST_F(HostLocaleTest, EndsAnIdAtItsFirstSeparatorOfThousands) {
  char definition[] = "7.700.001;int;n;0";
  EXPECT_EQ(VMetrics::RegisterMetricsDataType(definition), 0);
  EXPECT_EQ(VMetrics::GetMetricsMap().count(7), 1U);
}

TEST_F(HostLocaleTest, LeavesLengthsInLogLinesAlone) {
  EXPECT_EQ(RenderMessage(NumericRecord(0, 1, 1234567, "")), "");
  ExpectOnlyLogged(LoggedInvalidLength("FmtMetricsMsgToString", "1234567"));
}

}  // namespace
