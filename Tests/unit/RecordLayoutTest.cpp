// The records and the message header are wire formats: each byte has its place.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "Records.h"
#include "VIpc.h"
#include "VMetrics.h"

namespace {

template <typename Record>
std::string HeaderBytes(const Record& record) {
  return std::string(reinterpret_cast<const char*>(&record), sizeof record);
}

TEST(RecordLayoutTest, PutsTheHeaderOfANumericRecordIntoTwelveBytes) {
  EXPECT_EQ(sizeof(VMetricsData), 12U);
  EXPECT_EQ(alignof(VMetricsData), 1U);
  EXPECT_EQ(offsetof(VMetricsData, terminalId), 0U);
  EXPECT_EQ(offsetof(VMetricsData, eventId), 4U);
  EXPECT_EQ(offsetof(VMetricsData, dataLength), 8U);
  EXPECT_EQ(offsetof(VMetricsData, data), 12U);
}

TEST(RecordLayoutTest, PutsTheHeaderOfAStringRecordInto396Bytes) {
  EXPECT_EQ(sizeof(VMetricsDataString), 396U);
  EXPECT_EQ(alignof(VMetricsDataString), 1U);
  EXPECT_EQ(offsetof(VMetricsDataString, terminalId), 0U);
  EXPECT_EQ(offsetof(VMetricsDataString, type), 4U);
  EXPECT_EQ(offsetof(VMetricsDataString, eventId), 8U);
  EXPECT_EQ(offsetof(VMetricsDataString, userName), 136U);
  EXPECT_EQ(offsetof(VMetricsDataString, transactionId), 264U);
  EXPECT_EQ(offsetof(VMetricsDataString, businessType), 328U);
  EXPECT_EQ(offsetof(VMetricsDataString, serviceName), 360U);
  EXPECT_EQ(offsetof(VMetricsDataString, dataLength), 392U);
  EXPECT_EQ(offsetof(VMetricsDataString, data), 396U);
}

TEST(RecordLayoutTest, GivesEachTextOfAStringRecordItsWidth) {
  EXPECT_EQ(sizeof VMetricsDataString::eventId, 128U);
  EXPECT_EQ(sizeof VMetricsDataString::userName, 128U);
  EXPECT_EQ(sizeof VMetricsDataString::transactionId, 64U);
  EXPECT_EQ(sizeof VMetricsDataString::businessType, 32U);
  EXPECT_EQ(sizeof VMetricsDataString::serviceName, 32U);
}

TEST(RecordLayoutTest, CarriesTheBodyOfAMessageFromByte24On) {
  EXPECT_EQ(sizeof(VMessage), 24U);
  EXPECT_EQ(alignof(VMessage), 1U);
  EXPECT_EQ(offsetof(VMessage, srcModuleId), 4U);
  EXPECT_EQ(offsetof(VMessage, dstModuleId), 12U);
  EXPECT_EQ(offsetof(VMessage, msgType), 16U);
  EXPECT_EQ(offsetof(VMessage, body), 24U);
}

TEST(RecordLayoutTest, StoresANumericRecordByteByByte) {
  VMetricsData record{};
  record.terminalId = 7;
  record.eventId = 302710785;
  record.dataLength = 4;
  EXPECT_EQ(HeaderBytes(record), std::string("\x07\0\0\0\x01\0\x0B\x12\x04\0\0\0", 12));
}

TEST(RecordLayoutTest, StoresAStringRecordByteByByte) {
  VMetricsDataString record{};
  record.terminalId = 0x04030201;
  record.type = 0x08070605;
  std::memset(record.eventId, 'e', sizeof record.eventId);
  std::memset(record.userName, 'u', sizeof record.userName);
  std::memset(record.transactionId, 't', sizeof record.transactionId);
  std::memset(record.businessType, 'b', sizeof record.businessType);
  std::memset(record.serviceName, 's', sizeof record.serviceName);
  record.dataLength = 0x0C0B0A09;
  EXPECT_EQ(HeaderBytes(record), "\x01\x02\x03\x04\x05\x06\x07\x08" + std::string(128, 'e') +
                                     std::string(128, 'u') + std::string(64, 't') +
                                     std::string(32, 'b') + std::string(32, 's') +
                                     "\x09\x0A\x0B\x0C");
}

TEST(RecordLayoutTest, StoresTheHeaderOfAMessageByteByByte) {
  VMessage message{};
  message.srcModuleId = -2;
  message.dstModuleId = 0x04030201;
  message.msgType = 3;
  EXPECT_EQ(HeaderBytes(message),
            std::string("\0\0\0\0\xFE\xFF\xFF\xFF\0\0\0\0\x01\x02\x03\x04\x03\0\0\0\0\0\0\0", 24));
}

TEST(RecordLayoutTest, IsWhatTheTestsBuild) {
  TextRecord text;
  text.terminalId = 0x04030201;
  text.type = 0x08070605;
  text.eventId = "e";
  text.userName = "u";
  text.transactionId = "t";
  text.businessType = "b";
  text.serviceName = "s";
  text.value = "value";
  const std::string bytes = text.Bytes();
  ASSERT_EQ(bytes.size(), 401U);
  const auto* record = reinterpret_cast<const VMetricsDataString*>(bytes.data());
  EXPECT_EQ(std::uint32_t{record->terminalId}, 0x04030201U);
  EXPECT_EQ(std::uint32_t{record->type}, 0x08070605U);
  EXPECT_STREQ(record->eventId, "e");
  EXPECT_STREQ(record->userName, "u");
  EXPECT_STREQ(record->transactionId, "t");
  EXPECT_STREQ(record->businessType, "b");
  EXPECT_STREQ(record->serviceName, "s");
  EXPECT_EQ(std::uint32_t{record->dataLength}, 5U);
  EXPECT_STREQ(record->data, "value");
}

}  // namespace
