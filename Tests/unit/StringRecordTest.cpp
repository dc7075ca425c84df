#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "Common/StringRecord.h"
#include "FakePlatform.h"
#include "GuardedBytes.h"
#include "Records.h"

namespace {

using vmetrics::StringRecord;

/// The record's bytes, with a value of `dataLength` bytes.
std::string Bytes(const StringRecord& record, std::size_t dataLength = 0) {
  return std::string(reinterpret_cast<const char*>(record.Get()), 396 + dataLength);
}

class StringRecordTest : public testing::Test {
 protected:
  StringRecordTest() { FakePlatform::Reset(); }
};

TEST_F(StringRecordTest, IsAllZeroAtFirst) {
  EXPECT_EQ(Bytes(StringRecord(0)), std::string(396, '\0'));
  EXPECT_EQ(Bytes(StringRecord(100), 100), std::string(496, '\0'));
  EXPECT_EQ(Bytes(StringRecord(65536), 65536), std::string(396 + 65536, '\0'));
}

TEST_F(StringRecordTest, PutsEachFieldIntoItsPlace) {
  StringRecord record(7);
  record.SetType(VMETRICS_HEADER_INDEX_TRANSPORT);
  EXPECT_TRUE(record.SetEventId("event"));
  EXPECT_TRUE(record.SetServiceName("service"));
  EXPECT_TRUE(record.SetData("payload", 7));
  TextRecord expected;
  expected.type = 3;
  expected.eventId = "event";
  expected.serviceName = "service";
  expected.value = "payload";
  EXPECT_EQ(Bytes(record, 7), expected.Bytes());
}

TEST_F(StringRecordTest, StoresAnyIntAsItsType) {
  for (const int type : {1, -1, INT_MIN, INT_MAX}) {
    StringRecord record(0);
    record.SetType(static_cast<VMetricsHeaderIndexType>(type));
    TextRecord expected;
    expected.type = static_cast<std::uint32_t>(type);
    EXPECT_EQ(Bytes(record), expected.Bytes());
  }
}

TEST_F(StringRecordTest, TakesTextsAsLongAsTheirFields) {
  StringRecord record(0);
  EXPECT_TRUE(record.SetEventId(std::string(128, 'e')));
  EXPECT_TRUE(record.SetServiceName(std::string(32, 's')));
  TextRecord expected;
  expected.eventId = std::string(128, 'e');
  expected.serviceName = std::string(32, 's');
  EXPECT_EQ(Bytes(record), expected.Bytes());
}

TEST_F(StringRecordTest, TakesEmptyTexts) {
  StringRecord record(0);
  EXPECT_TRUE(record.SetEventId(""));
  EXPECT_TRUE(record.SetServiceName(""));
  EXPECT_EQ(Bytes(record), TextRecord().Bytes());
}

TEST_F(StringRecordTest, RefusesTextsLongerThanTheirFields) {
  StringRecord record(0);
  EXPECT_FALSE(record.SetEventId(std::string(129, 'e')));
  EXPECT_FALSE(record.SetServiceName(std::string(33, 's')));
  EXPECT_EQ(Bytes(record), TextRecord().Bytes());
}

TEST_F(StringRecordTest, CopiesUpTo65536BytesOfData) {
  const std::string data(65536, 'd');
  const GuardedBytes guarded(data);
  StringRecord record(data.size());
  EXPECT_TRUE(record.SetData(guarded.Data(), 65536));
  TextRecord expected;
  expected.value = data;
  EXPECT_EQ(Bytes(record, data.size()), expected.Bytes());
}

TEST_F(StringRecordTest, StoresOnlyTheLengthOfMoreData) {
  const GuardedBytes data("d");
  for (const std::uint32_t length : {65537U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    StringRecord record(length);
    EXPECT_TRUE(record.SetData(data.Data(), length));
    TextRecord expected;
    expected.dataLength = length;
    EXPECT_EQ(Bytes(record), expected.Bytes());
  }
}

TEST_F(StringRecordTest, RefusesNullForData) {
  for (const std::uint32_t length : {0U, 5U, 65536U, 65537U, 0x7FFFFFFFU}) {
    StringRecord record(length);
    EXPECT_FALSE(record.SetData(nullptr, length)) << length;
  }
}

TEST_F(StringRecordTest, TakesNoDataAtAll) {
  const GuardedBytes nothing("");
  StringRecord record(0);
  EXPECT_TRUE(record.SetData(nothing.Data(), 0));
  EXPECT_EQ(Bytes(record), TextRecord().Bytes());
}

TEST_F(StringRecordTest, RefusesWhenTheCopyIsRefused) {
  StringRecord record(4);
  FakePlatform::FailCopy(1);
  EXPECT_FALSE(record.SetEventId("event"));
  FakePlatform::FailCopy(1);
  EXPECT_FALSE(record.SetServiceName("service"));
  FakePlatform::FailCopy(1);
  EXPECT_FALSE(record.SetData("data", 4));
}

}  // namespace
