#include <gtest/gtest.h>

#include "Common/ReportFailure.h"
#include "FakePlatform.h"
#include "VMetrics.h"

namespace {

TEST(ReportFailureTest, LogsTheCallersLineAndFunction) {
  FakePlatform::Reset();
  const int line = __LINE__ + 1;
  EXPECT_EQ(vmetrics::ReportFailure("Some/Unit"), VMETRICS_REPORT_FAILED);

  ASSERT_EQ(FakePlatform::LogLines().size(), 1U);
  const FakePlatform::LogLine& logged = FakePlatform::LogLines()[0];
  EXPECT_EQ(logged.file, "Some/Unit");
  EXPECT_EQ(logged.line, line);
  EXPECT_EQ(logged.function, "TestBody");
  EXPECT_EQ(logged.text1, " ");
  EXPECT_EQ(logged.text2, "");
  EXPECT_EQ(logged.level, 1);
  EXPECT_EQ(logged.message, "SendStringDataToMetric failed");
}

}  // namespace
