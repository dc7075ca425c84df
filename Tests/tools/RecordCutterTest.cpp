#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "Records.h"
#include "records/RecordCutter.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecordCutterTest : public testing::Test {
 protected:
  void Add(RecordCutter& cutter, std::string_view piece) {
    cutter.Add(piece, [&](std::string_view record) {
      records_.emplace_back(record);
      offsets_.push_back(cutter.Offset());
    });
  }

  std::vector<std::string> records_;
  std::vector<std::uint64_t> offsets_;
};

TEST_F(RecordCutterTest, AnyCuttingIntoPiecesGivesTheSameRecords) {
  const std::string one = NumericRecord(7, 302645249, ValueBytes(60));
  const std::string empty = NumericRecord(7, 302645249, "");
  const std::string long1 = NumericRecord(7, 302645253, std::string(300, 'x'));
  const std::string all = one + empty + long1 + one.substr(0, 14);
  for (std::size_t size = 1; size <= all.size(); ++size) {
    SCOPED_TRACE(size);
    records_.clear();
    offsets_.clear();
    RecordCutter cutter(RecordKind::kNumeric);
    for (std::size_t at = 0; at < all.size(); at += size) {
      Add(cutter, std::string_view(all).substr(at, size));
    }
    EXPECT_THAT(records_, ElementsAre(one, empty, long1));
    EXPECT_THAT(offsets_, ElementsAre(0, 16, 28));
    EXPECT_EQ(cutter.Rest(), one.substr(0, 14));
    EXPECT_EQ(cutter.Offset(), 340U);
    EXPECT_FALSE(cutter.IsLost());
  }
}

TEST_F(RecordCutterTest, MessageIsCutByTheRecordThatItCarries) {
  const std::string message = Message(1, 2, 3, NumericRecord(7, 302645249, ValueBytes(60)));
  RecordCutter cutter(RecordKind::kMessage);
  Add(cutter, message + message);
  EXPECT_THAT(records_, ElementsAre(message, message));
}

TEST_F(RecordCutterTest, RecordWithEventIdIsCutByItsOwnLength) {
  TextRecord record;
  record.eventId = "nox_user_connect";
  record.value = "{}";
  RecordCutter cutter(RecordKind::kString);
  Add(cutter, record.Bytes() + record.Bytes());
  EXPECT_THAT(records_, ElementsAre(record.Bytes(), record.Bytes()));
}

TEST_F(RecordCutterTest, LongestLengthThatIsOneIsPassed) {
  const std::string longest = NumericRecord(7, 302645253, std::string(65536, 'x'));
  const std::string next = NumericRecord(7, 302645249, "");
  RecordCutter cutter(RecordKind::kNumeric);
  Add(cutter, longest + next);
  EXPECT_THAT(records_, ElementsAre(longest, next));
}

TEST_F(RecordCutterTest, NothingIsTakenBehindALengthThatIsNone) {
  const std::string next = NumericRecord(7, 302645249, "");
  const std::string header = NumericRecord(7, 302645253, 65537, "");
  for (const std::size_t size : {std::size_t{1}, std::size_t{100000}}) {
    SCOPED_TRACE(size);
    records_.clear();
    RecordCutter cutter(RecordKind::kNumeric);
    const std::string all = next + header + std::string(65537, 'x') + next;
    for (std::size_t at = 0; at < all.size(); at += size) {
      Add(cutter, std::string_view(all).substr(at, size));
    }
    EXPECT_THAT(records_, ElementsAre(next));
    EXPECT_TRUE(cutter.IsLost());
    EXPECT_EQ(cutter.Rest(), header);
    EXPECT_EQ(cutter.Offset(), 12U);
  }
}

TEST_F(RecordCutterTest, NothingIsMadeOfNothing) {
  RecordCutter cutter(RecordKind::kNumeric);
  Add(cutter, "");
  EXPECT_THAT(records_, IsEmpty());
  EXPECT_THAT(cutter.Rest(), IsEmpty());
}

}  // namespace
}  // namespace vmetrics
