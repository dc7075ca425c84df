/// What tests of the kit let a component do.
#ifndef TESTKITTEST_H_
#define TESTKITTEST_H_

#include <gtest/gtest.h>

#include <string>

#include "VMetrics.h"
#include "VMetricsTestKit.h"

class TestKitTest : public testing::Test {
 protected:
  TestKitTest() { TestKit::Reset(); }

  static void Start(const char* step) {
    EXPECT_EQ(VMetrics::InsertRecord(0, "t", "ORDER", step, "", 0), VMETRICS_OK);
  }

  static void End(const char* step, int error = 0) {
    EXPECT_EQ(VMetrics::InsertRecord(1, "t", "ORDER", step, "ParentSpanId", error), VMETRICS_OK);
  }

  static void Trace(const char* step, int error = 0) {
    Start(step);
    End(step, error);
  }

  static int Register(const char* definition) {
    std::string text = definition;
    return VMetrics::RegisterMetricsStringDataType(&text[0]);
  }

  /// Reports an event; "nox_user_connect" is built in, its value is JSON.
  static void Report(const std::string& data, const char* eventId = "nox_user_connect") {
    EXPECT_EQ(SendStringDataToMetric(eventId, "shop", data.data(), static_cast<int>(data.size()),
                                     VMETRICS_HEADER_INDEX_FRAMEWORK),
              VMETRICS_OK);
  }
};

#endif  // TESTKITTEST_H_
