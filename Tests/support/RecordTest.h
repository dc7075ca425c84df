/// What tests of both kinds of records share: one metric that is known under a numeric ID and under
/// an event ID, and the lines of records that carry nothing but its value.
#ifndef RECORDTEST_H_
#define RECORDTEST_H_

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "FakePlatform.h"
#include "FrameworkTest.h"
#include "RecordRenderers.h"

class RecordTest : public FrameworkTest {
 protected:
  static constexpr std::uint32_t kMetric = 770001;  // 0x000BBFD1
  static constexpr char kEvent[] = "RECORD_TEST";

  /// Enters the metric under both IDs.
  static void Describe(const MetricEntry& entry) {
    VMetrics::GetMetricsMap()[kMetric] = entry;
    VMetrics::GetMetricsStringMap()[kEvent] = entry;
  }

  /// The string record that carries `value`.
  static TextRecord Carrying(const std::string& value) {
    TextRecord record;
    record.eventId = kEvent;
    record.value = value;
    return record;
  }

  /// The line of a numeric record, `arguments` being what follows its header members.
  static std::string NumericLine(const std::string& arguments) {
    return R"({"eventId":"770001","timestamp":1700000000000,"moduleId":11,"terminalId":"0")" +
           arguments + "}";
  }

  /// The same for a string record.
  static std::string TextLine(const std::string& arguments) {
    return R"({"eventId":"RECORD_TEST","timestamp":1700000000000,"terminalId":"0","type":"0",)"
           R"("transactionId":"","businessType":"","serviceName":"","userName":"")" +
           arguments + "}";
  }

  /// Renders `value` in both records.
  static void ExpectArguments(const std::string& value, const std::string& arguments) {
    EXPECT_EQ(RenderNumeric(NumericRecord(0, kMetric, value)), NumericLine(arguments));
    EXPECT_EQ(RenderText(Carrying(value)), TextLine(arguments));
    EXPECT_TRUE(FakePlatform::LogLines().empty());
  }

  static void ExpectArguments(const MetricEntry& entry, const std::string& value,
                              const std::string& arguments) {
    Describe(entry);
    ExpectArguments(value, arguments);
  }
};

#endif  // RECORDTEST_H_
