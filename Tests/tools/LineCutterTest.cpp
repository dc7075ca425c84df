#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "LineCutter.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LineCutterTest : public testing::Test {
 protected:
  void Add(std::string_view piece) {
    cutter_.Add(piece, [this](std::string_view line) { lines_.emplace_back(line); });
  }
  void Finish() {
    cutter_.Finish([this](std::string_view line) { lines_.emplace_back(line); });
  }

  LineCutter cutter_{8};
  std::vector<std::string> lines_;
};

TEST_F(LineCutterTest, LinesOfOnePieceAreCut) {
  Add("one\n\ntwo\n");
  EXPECT_THAT(lines_, ElementsAre("one", "", "two"));
}

TEST_F(LineCutterTest, AnyCuttingIntoPiecesGivesTheSameLines) {
  const std::string text = "one\n\n12345678\n123456789\ntwo\nthree";
  for (std::size_t size = 1; size <= text.size(); ++size) {
    SCOPED_TRACE(size);
    lines_.clear();
    for (std::size_t at = 0; at < text.size(); at += size) {
      Add(std::string_view(text).substr(at, size));
    }
    Finish();
    EXPECT_THAT(lines_, ElementsAre("one", "", "12345678", "two", "three"));
    EXPECT_EQ(cutter_.Overlong(), size);
  }
}

TEST_F(LineCutterTest, LastLineNeedsNoLineBreak) {
  Add("one\ntwo");
  EXPECT_THAT(lines_, ElementsAre("one"));
  Finish();
  EXPECT_THAT(lines_, ElementsAre("one", "two"));
}

TEST_F(LineCutterTest, NothingFollowsTheLastLineBreak) {
  Add("one\n");
  Finish();
  EXPECT_THAT(lines_, ElementsAre("one"));
}

TEST_F(LineCutterTest, FinishBeginsAnew) {
  Add("one");
  Finish();
  Finish();
  Add("two\n");
  EXPECT_THAT(lines_, ElementsAre("one", "two"));
}

TEST_F(LineCutterTest, OverlongLastLineIsPassedOver) {
  Add("123456789");
  Finish();
  EXPECT_THAT(lines_, IsEmpty());
  EXPECT_EQ(cutter_.Overlong(), 1U);
  Add("one\n");
  EXPECT_THAT(lines_, ElementsAre("one"));
}

TEST_F(LineCutterTest, LineMayHoldAnyByte) {
  Add(std::string_view("a\0b\r\n", 5));
  EXPECT_THAT(lines_, ElementsAre(std::string("a\0b\r", 4)));
}

}  // namespace
}  // namespace vmetrics
