// Whatever bytes a record is made of, right before an unreadable page, its line is the oracle's.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "RecordModel.h"
#include "RecordTest.h"
#include "SpanMatchers.h"

namespace {

constexpr const char* kTypes[] = {"string", "int",  "uint64_t", "int64_t",
                                  "double", "bool", "enum",     "json"};

class BadBytesTest : public RecordTest {
 protected:
  /// Compares what both kinds of record make of `value` with the oracle.
  static void ExpectOraclesLines(const std::string& type, const std::string& value) {
    Describe({type, "n", "0"});
    const Oracle::Metrics metrics = OraclesMetrics(type);
    const std::string record = NumericRecord(7, kMetric, value);
    EXPECT_EQ(RenderNumeric(record),
              Oracle::Line(Oracle::NumericRecord(record.data(), kTick, metrics)));
    ExpectOraclesLine(Carrying(value), metrics);
  }

  static void ExpectOraclesLine(const TextRecord& text, const Oracle::Metrics& metrics) {
    const std::string bytes = text.Bytes();
    EXPECT_EQ(RenderText(text), Oracle::Line(Oracle::StringRecord(bytes.data(), kTick, metrics)));
  }

  static Oracle::Metrics OraclesMetrics(const std::string& type) {
    const Oracle::Metric metric = {type, "n", "0"};
    return {{{kMetric, metric}}, {{kEvent, metric}}};
  }

  static constexpr unsigned long kTick = FakePlatform::kFirstTick;
};

TEST_F(BadBytesTest, AreReadAsFarAsTheyAreThereAtEveryLength) {
  for (const char* type : kTypes) {
    SCOPED_TRACE(type);
    for (const char first : {'\x01', '\x70', '\xF8'}) {
      std::string value;
      for (int length = 0; length <= 10; ++length) {
        ExpectOraclesLines(type, value);
        value += static_cast<char>(first + length);
      }
    }
  }
}

TEST_F(BadBytesTest, NeedNoTerminatorInATextOfAnyLength) {
  std::string text;
  std::string json = "\"\"";
  for (int length = 0; length <= 300; ++length) {
    ExpectOraclesLines("string", text);
    ExpectOraclesLines("json", json);
    text += static_cast<char>('a' + length % 26);
    json.insert(1, "x");
  }
}

TEST_F(BadBytesTest, StandAtAnyPlaceInAnyTextOfARecord) {
  struct Field {
    std::string TextRecord::*text;
    std::size_t width;
  };
  for (const auto& [field, width] : {Field{&TextRecord::eventId, 128},
                                     {&TextRecord::userName, 128},
                                     {&TextRecord::transactionId, 64},
                                     {&TextRecord::businessType, 32},
                                     {&TextRecord::serviceName, 32}}) {
    for (const std::size_t place : {std::size_t{0}, width / 2, width - 2, width - 1}) {
      for (int byte = 0; byte <= 0xFF; ++byte) {
        TextRecord record = Carrying("value");
        (record.*field).assign(std::max(place + 1, width - 1), 'x');
        (record.*field)[place] = static_cast<char>(byte);
        ExpectOraclesLine(record, {});
      }
    }
  }
}

TEST_F(BadBytesTest, StandAtAnyPlaceInAValue) {
  for (const char* type : {"string", "json"}) {
    const std::string plain = *type == 's' ? std::string(20, 'x') : R"({"key":["text",-12.5]})";
    for (const std::size_t place : {std::size_t{0}, plain.size() / 2, plain.size() - 1}) {
      for (int byte = 0; byte <= 0xFF; ++byte) {
        std::string value = plain;
        value[place] = static_cast<char>(byte);
        ExpectOraclesLines(type, value);
      }
    }
  }
}

TEST_F(BadBytesTest, AreNoFormatInTheLogLinesOfSteps) {
  VMetrics::InsertRecord(1, "%s", "%n", "%d%s%n", "%x", 0);
  EXPECT_THAT(FakePlatform::LogLines(),
              testing::ElementsAre(IsInsertError("stepName[%s] has not startEvent",
                                                 "stepName[%d%s%n] has not startEvent")));
}

TEST_F(BadBytesTest, AreNoFormatInTheRecordsOfSteps) {
  VMetrics::InsertRecord(0, "%s", "%n", "%d%s%n", "%x", 0);
  VMetrics::InsertRecord(1, "%s", "%n", "%d%s%n", "%x", 0);
  ASSERT_EQ(FakePlatform::MetricsLines().size(), 1U);
  EXPECT_EQ(FakePlatform::MetricsLines()[0].format, "%s");
  EXPECT_EQ(FakePlatform::MetricsLines()[0].text,
            R"({"eventId":"%n","timestamp":1700000000000,"terminalId":"0","type":"2",)"
            R"("transactionId":"%s","spanId":")" +
                FakePlatform::Files()["spanId"] +
                R"(","parentSpanId":"%x","args":{"stepName":"%d%s%n","errorCode":0,)"
                R"("isSuccess":1,"startTime":1700000000000,"endTime":1700000000000,)"
                R"("usedTime":0}})");
}

}  // namespace
