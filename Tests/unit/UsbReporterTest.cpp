#include <gtest/gtest.h>

#include <string>

#include "FailureSites.h"
#include "FrameworkTest.h"
#include "LoggedLine.h"

namespace {

std::string Line(const std::string& serviceName, const std::string& arguments) {
  return R"({"eventId":"VMETRICS_USB_DRIVER_ERROR","timestamp":1700000000000,"terminalId":"0",)"
         R"("type":"0","transactionId":"","businessType":"","serviceName":")" +
         serviceName + R"(","userName":"")" + arguments + "}";
}

constexpr char kArguments[] = R"(,"args":{"driverError":"Init drivers error."})";

int ReportAnything() { return VMetrics::SendUsbDriverErrorMetrics("usb"); }

testing::Matcher<const FakePlatform::LogLine&> Failure() {
  return LoggedLine(kUsbMetricsUnit, "SendUsbDriverErrorMetrics", 1,
                    "SendStringDataToMetric failed");
}

using UsbReporterTest = FrameworkTest;

TEST_F(UsbReporterTest, ReportsTheDriverError) {
  EXPECT_EQ(VMetrics::SendUsbDriverErrorMetrics("usbService"), 0);
  ExpectOnlyEmitted(
      R"({"eventId":"VMETRICS_USB_DRIVER_ERROR","timestamp":1700000000000,)"
      R"("terminalId":"0","type":"0","transactionId":"","businessType":"",)"
      R"("serviceName":"usbService","userName":"","args":{"driverError":"Init drivers error."}})");
  EXPECT_EQ(FakePlatform::TicksRead(), 1);
}

TEST_F(UsbReporterTest, AcceptsAServiceNameOf1To31Bytes) {
  for (const std::size_t length : {1U, 31U}) {
    FakePlatform::Reset();
    const std::string name(length, 's');
    EXPECT_EQ(VMetrics::SendUsbDriverErrorMetrics(name), 0);
    ExpectOnlyEmitted(Line(name, kArguments));
  }
}

TEST_F(UsbReporterTest, LetsAServiceNameOf32BytesRunOnIntoTheLength) {
  const std::string name(32, 's');
  EXPECT_EQ(VMetrics::SendUsbDriverErrorMetrics(name), 0);
  ExpectOnlyEmitted(Line(name + "\\u0013", kArguments));  // The text has 19 bytes.
}

TEST_F(UsbReporterTest, RefusesALongerServiceName) {
  for (const std::size_t length : {33U, 1000U}) {
    FakePlatform::Reset();
    EXPECT_EQ(VMetrics::SendUsbDriverErrorMetrics(std::string(length, 's')), -10000);
    ExpectOnlyLogged(Failure());
  }
}

TEST_F(UsbReporterTest, RefusesAnEmptyServiceName) {
  EXPECT_EQ(VMetrics::SendUsbDriverErrorMetrics(""), -10000);
  ExpectOnlyLogged(Failure());
}

TEST_F(UsbReporterTest, EscapesTheServiceName) {
  EXPECT_EQ(VMetrics::SendUsbDriverErrorMetrics("%s\"\n\xFF"), 0);
  ExpectOnlyEmitted(Line("%s\\\"\\n\uFFFD", kArguments));
}

TEST_F(UsbReporterTest, FollowsTheEntryOfItsEvent) {
  VMetrics::GetMetricsStringMap().at("VMETRICS_USB_DRIVER_ERROR") = {"json", "driverError", "0"};
  EXPECT_EQ(ReportAnything(), 0);
  ExpectOnlyEmitted(Line("usb", ""));
}

TEST_F(UsbReporterTest, FailsWhenACopyIntoTheRecordIsRefused) {
  for (const int copy : {1, 2, 3}) {
    SCOPED_TRACE(copy);
    FakePlatform::Reset();
    FakePlatform::FailCopy(copy);
    EXPECT_EQ(ReportAnything(), -10000);
    ExpectOnlyLogged(Failure());
  }
}

TEST_F(UsbReporterTest, FailsWhenTheRendererCannotCopyTheValue) {
  FakePlatform::FailCopy(4);
  EXPECT_EQ(ReportAnything(), -10000);
  ExpectOnlyLogged(LoggedLine(kVMetricsUnit, "GetStringBaseMetricsString", 1, "memcpy error"),
                   Failure());
}

TEST_F(UsbReporterTest, CopiesFourTimes) {
  FakePlatform::FailCopy(5);
  EXPECT_EQ(ReportAnything(), 0);
}

TEST_F(UsbReporterTest, LogsEachFailureWithALineOfItsOwn) {
  ExpectSitesOfTheirOwn({[] { return VMetrics::SendUsbDriverErrorMetrics(""); },
                         WithRefusedCopy(1, ReportAnything), WithRefusedCopy(2, ReportAnything),
                         WithRefusedCopy(3, ReportAnything), WithRefusedCopy(4, ReportAnything)},
                        Failure());
}

TEST_F(UsbReporterTest, RefusesALongServiceNameWhereItCopiesTheServiceName) {
  FakePlatform::FailCopy(2);
  ReportAnything();
  VMetrics::SendUsbDriverErrorMetrics(std::string(33, 's'));
  ASSERT_EQ(FakePlatform::LogLines().size(), 2U);
  EXPECT_EQ(FakePlatform::LogLines()[0].line, FakePlatform::LogLines()[1].line);
}

}  // namespace
