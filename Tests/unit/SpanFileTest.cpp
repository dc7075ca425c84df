#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

#include "DotRecord/SpanFile.h"
#include "FailEachAllocation.h"
#include "SpanMatchers.h"
#include "VMetrics.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using vmetrics::PublishSpanId;
using vmetrics::ReadSpanFile;
using vmetrics::TakeParentSpanId;

constexpr char kWriteFailed[] = "write failed count = %d, spanId.size = %d";

auto IsParentLine(const std::string& parent) {
  return IsTracingLine(3, "GetCurrentParentSpanId", "parentSpanId = %s",
                       "parentSpanId = " + parent);
}

class SpanFileTest : public testing::Test {
 protected:
  SpanFileTest() { FakePlatform::Reset(); }

  static std::string& Content() { return FakePlatform::Files()["spanId"]; }
};

/// What stands in the file, and what a reader makes of it.
struct Reading {
  const char* name;
  std::string content;
  std::string text;
};

void PrintTo(const Reading& reading, std::ostream* out) { *out << reading.name; }

class SpanFileReadingTest : public SpanFileTest, public testing::WithParamInterface<Reading> {};

std::string Characters(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += static_cast<char>('a' + i % 26);
  }
  return text;
}

INSTANTIATE_TEST_SUITE_P(Contents, SpanFileReadingTest,
                         testing::Values(Reading{"Empty", "", ""}, Reading{"OneByte", "a", "a"},
                                         Reading{"OneByteShort", Characters(35), Characters(35)},
                                         Reading{"AnIdentifier", kSpanA, kSpanA},
                                         Reading{"OneByteLong", Characters(37), Characters(37)},
                                         Reading{"Bytes127", Characters(127), Characters(127)},
                                         Reading{"Bytes128", Characters(128), Characters(128)},
                                         Reading{"Bytes129", Characters(129), Characters(128)},
                                         Reading{"Bytes200", Characters(200), Characters(128)},
                                         Reading{"NulAtTheBeginning", std::string("\0abc", 4), ""},
                                         Reading{"NulInside", std::string("abc\0def", 7), "abc"},
                                         Reading{"NulAsByte128", Characters(127) + '\0' + "z",
                                                 Characters(127)},
                                         Reading{"LineBreakIsContent", "abc\n", "abc\n"},
                                         Reading{"PercentIsContent", "%s%n%d", "%s%n%d"}),
                         [](const auto& suite) { return suite.param.name; });

TEST_P(SpanFileReadingTest, CurrentParentIsTheTextUpToTheFirstNul) {
  Content() = GetParam().content;
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), GetParam().text);
}

TEST_P(SpanFileReadingTest, CurrentParentIsLogged) {
  Content() = GetParam().content;
  VMetrics::GetCurrentParentSpanId();
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsParentLine(GetParam().text)));
}

TEST_P(SpanFileReadingTest, EndOfAStepTakesTheTextUpToTheFirstNul) {
  Content() = GetParam().content;
  EXPECT_EQ(TakeParentSpanId(), GetParam().text);
}

TEST_P(SpanFileReadingTest, ReadingLeavesTheContent) {
  Content() = GetParam().content;
  VMetrics::GetCurrentParentSpanId();
  TakeParentSpanId();
  EXPECT_EQ(Content(), GetParam().content);
}

// What is read is exactly the file: nothing is left over from an earlier, longer content.
TEST_F(SpanFileTest, ShortContentIsNotFilledUpFromTheContentBefore) {
  Content() = Characters(128);
  EXPECT_EQ(TakeParentSpanId(), Characters(128));
  Content() = "xyz";
  EXPECT_EQ(TakeParentSpanId(), "xyz");
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "xyz");
}

TEST_F(SpanFileTest, FileKeepsItsNameAndPlaceholderItsText) {
  EXPECT_STREQ(vmetrics::kSpanFileName, "spanId");
  EXPECT_STREQ(vmetrics::kParentSpanIdPlaceholder, "ParentSpanId");
}

TEST_F(SpanFileTest, MissingFileHoldsNoParent) {
  ASSERT_THAT(FakePlatform::Files(), IsEmpty());
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsParentLine("")));
}

TEST_F(SpanFileTest, MissingFileHoldsNoParentForTheEndOfAStep) {
  EXPECT_EQ(TakeParentSpanId(), "");
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(SpanFileTest, FileThatCannotBeReadYieldsNoText) {
  Content() = kSpanA;
  VFileLock unlocked("spanId");
  EXPECT_EQ(ReadSpanFile(unlocked), "");
}

TEST_F(SpanFileTest, CurrentParentIsReadUnderOneSharedLock) {
  VMetrics::GetCurrentParentSpanId();
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock shared spanId", "read 128 spanId", "unlock spanId"));
}

TEST_F(SpanFileTest, EndOfAStepReadsUnderOneExclusiveLock) {
  TakeParentSpanId();
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId", "read 128 spanId", "unlock spanId"));
}

TEST_F(SpanFileTest, PublishingWritesUnderOneExclusiveLock) {
  PublishSpanId(kSpanA);
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId", "write 36 spanId", "unlock spanId"));
}

TEST_F(SpanFileTest, RefusedSharedLockYieldsThePlaceholderAndIsNotLogged) {
  Content() = kSpanA;
  FakePlatform::RefuseAllLocks();
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "ParentSpanId");
  EXPECT_THAT(FakePlatform::FileOperations(), ElementsAre("lock shared spanId"));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(SpanFileTest, RefusedExclusiveLockYieldsThePlaceholderAndIsNotLogged) {
  Content() = kSpanA;
  FakePlatform::RefuseAllLocks();
  EXPECT_EQ(TakeParentSpanId(), "ParentSpanId");
  EXPECT_THAT(FakePlatform::FileOperations(), ElementsAre("lock exclusive spanId"));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(SpanFileTest, RefusedLockSkipsTheWriteWithoutAWord) {
  Content() = kSpanA;
  FakePlatform::RefuseAllLocks();
  PublishSpanId(kSpanB);
  EXPECT_THAT(FakePlatform::FileOperations(), ElementsAre("lock exclusive spanId"));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_EQ(Content(), kSpanA);
}

// The placeholder stands for a refused lock and for nothing else.
TEST_F(SpanFileTest, PlaceholderInTheFileIsReadLikeAnyText) {
  Content() = "ParentSpanId";
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "ParentSpanId");
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsParentLine("ParentSpanId")));
}

TEST_F(SpanFileTest, PublishingReplacesALongerContent) {
  Content() = Characters(200);
  PublishSpanId(kSpanB);
  EXPECT_THAT(FakePlatform::Files(), ElementsAre(Pair("spanId", kSpanB)));
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(SpanFileTest, PublishingCreatesTheFile) {
  PublishSpanId(kSpanB);
  EXPECT_THAT(FakePlatform::Files(), ElementsAre(Pair("spanId", kSpanB)));
}

TEST_F(SpanFileTest, PublishedIdentifierIsTheCurrentParent) {
  PublishSpanId(kSpanA);
  PublishSpanId(kSpanB);
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), kSpanB);
}

/// How many bytes a write takes, and what the log says to that.
struct WriteLimit {
  const char* name;
  int bytes;
  const char* message;
};

void PrintTo(const WriteLimit& limit, std::ostream* out) { *out << limit.name; }

class SpanFileWriteTest : public SpanFileTest, public testing::WithParamInterface<WriteLimit> {};

INSTANTIATE_TEST_SUITE_P(
    Limits, SpanFileWriteTest,
    testing::Values(WriteLimit{"Failed", -1, "write failed count = -1, spanId.size = 36"},
                    WriteLimit{"Nothing", 0, "write failed count = 0, spanId.size = 36"},
                    WriteLimit{"Half", 17, "write failed count = 17, spanId.size = 36"},
                    WriteLimit{"OneShort", 35, "write failed count = 35, spanId.size = 36"}),
    [](const auto& suite) { return suite.param.name; });

TEST_P(SpanFileWriteTest, ShortWriteIsLoggedWithItsCount) {
  FakePlatform::LimitWrites(GetParam().bytes);
  PublishSpanId(kSpanA);
  EXPECT_THAT(FakePlatform::LogLines(),
              ElementsAre(IsInsertError(kWriteFailed, GetParam().message)));
}

TEST_P(SpanFileWriteTest, LockIsGivenBackAfterAShortWrite) {
  FakePlatform::LimitWrites(GetParam().bytes);
  PublishSpanId(kSpanA);
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock exclusive spanId", "write 36 spanId", "unlock spanId"));
}

TEST_F(SpanFileTest, WholeWriteIsNotLogged) {
  FakePlatform::LimitWrites(36);
  PublishSpanId(kSpanA);
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
  EXPECT_EQ(Content(), kSpanA);
}

// A buffer that cannot be cleared must not be read into: what stood in memory could come out.
TEST_F(SpanFileTest, RefusedClearingReadsNothing) {
  Content() = kSpanA;
  FakePlatform::FailClear(1);
  EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "");
  FakePlatform::FailClear(1);
  EXPECT_EQ(TakeParentSpanId(), "");
  EXPECT_THAT(FakePlatform::FileOperations(),
              ElementsAre("lock shared spanId", "unlock spanId",  //
                          "lock exclusive spanId", "unlock spanId"));
  EXPECT_THAT(FakePlatform::LogLines(), ElementsAre(IsParentLine("")));
}

TEST_F(SpanFileTest, NeitherReadingNorWritingReadsTheClock) {
  PublishSpanId(kSpanA);
  TakeParentSpanId();
  VMetrics::GetCurrentParentSpanId();
  EXPECT_EQ(FakePlatform::TicksRead(), 0);
  EXPECT_THAT(FakePlatform::MetricsLines(), IsEmpty());
}

/// Makes each allocation of `call` fail in turn; the lock is given back each time.
void FailEachAllocationOf(void (*call)()) {
  FailEachAllocation(
      AllocationFailure::Extent::kOnce,
      [] {
        FakePlatform::Reset();
        FakePlatform::Files()["spanId"] = Characters(128);
        RoomForFileOperations();
      },
      [call] {
        call();
        return std::string();
      },
      [](const std::optional<std::string>&, long) { EXPECT_FALSE(HasOpenSession()); });
}

TEST_F(SpanFileTest, LockIsGivenBackWhenMemoryRunsOut) {
  FailEachAllocationOf([] { VMetrics::GetCurrentParentSpanId(); });
  FailEachAllocationOf([] { TakeParentSpanId(); });
  FailEachAllocationOf([] { PublishSpanId(kSpanA); });
}

}  // namespace
