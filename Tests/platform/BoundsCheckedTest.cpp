#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "BoundsChecked.h"

namespace {

constexpr std::size_t kHalf = SIZE_MAX / 2;

/// A destination of eight bytes, of which each test uses less.
class BoundsCheckedTest : public testing::Test {
 protected:
  std::string All() const { return std::string(buffer_, sizeof buffer_); }

  /// The destination after its first `count` bytes became `byte`.
  static std::string Filled(std::size_t count, char byte) {
    return std::string(count, byte) + std::string("ABCDEFGH").substr(count);
  }

  char buffer_[8] = {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H'};
};

TEST_F(BoundsCheckedTest, CopiesWhatFits) {
  EXPECT_EQ(memcpy_s(buffer_, 4, "123", 3), 0);
  EXPECT_EQ(All(), "123DEFGH");
  EXPECT_EQ(memcpy_s(buffer_, 4, "wxyz", 4), 0);
  EXPECT_EQ(All(), "wxyzEFGH");
}

TEST_F(BoundsCheckedTest, CopiesNothingForACountOfZero) {
  EXPECT_EQ(memcpy_s(buffer_, 4, "123", 0), 0);
  EXPECT_EQ(memcpy_s(buffer_, 0, "123", 0), 0);
  EXPECT_EQ(memcpy_s(buffer_, 4, buffer_, 0), 0);
  EXPECT_EQ(All(), "ABCDEFGH");
}

TEST_F(BoundsCheckedTest, RefusesToCopyToNowhere) {
  EXPECT_NE(memcpy_s(nullptr, 4, "123", 3), 0);
  EXPECT_NE(memcpy_s(nullptr, 0, "123", 0), 0);
}

TEST_F(BoundsCheckedTest, RefusesToCopyFromNowhereAndClears) {
  EXPECT_NE(memcpy_s(buffer_, 4, nullptr, 3), 0);
  EXPECT_EQ(All(), Filled(4, '\0'));
}

TEST_F(BoundsCheckedTest, RefusesToCopyNothingFromNowhere) {
  EXPECT_NE(memcpy_s(buffer_, 4, nullptr, 0), 0);
  EXPECT_EQ(All(), Filled(4, '\0'));
}

TEST_F(BoundsCheckedTest, RefusesToCopyMoreThanThereIsRoomForAndClears) {
  EXPECT_NE(memcpy_s(buffer_, 4, "12345", 5), 0);
  EXPECT_EQ(All(), Filled(4, '\0'));
}

TEST_F(BoundsCheckedTest, RefusesToCopyIntoNoRoom) {
  EXPECT_NE(memcpy_s(buffer_, 0, "1", 1), 0);
  EXPECT_EQ(All(), "ABCDEFGH");
}

TEST_F(BoundsCheckedTest, RefusesToCopyANegativeCountAndClears) {
  EXPECT_NE(memcpy_s(buffer_, 4, "123", static_cast<std::size_t>(-1)), 0);
  EXPECT_EQ(All(), Filled(4, '\0'));
}

TEST_F(BoundsCheckedTest, RefusesANegativeDestinationSizeAndTouchesNothing) {
  EXPECT_NE(memcpy_s(buffer_, kHalf + 1, "123", 3), 0);
  EXPECT_NE(memcpy_s(buffer_, static_cast<std::size_t>(-1), "123", 3), 0);
  EXPECT_EQ(All(), "ABCDEFGH");
}

TEST_F(BoundsCheckedTest, TakesADestinationSizeOfHalfTheAddressSpace) {
  EXPECT_EQ(memcpy_s(buffer_, kHalf, "123", 3), 0);
  EXPECT_EQ(All(), "123DEFGH");
}

TEST_F(BoundsCheckedTest, RefusesToCopyOntoAnOverlappingAreaAndClears) {
  EXPECT_NE(memcpy_s(buffer_, 4, buffer_ + 2, 3), 0);  // The source begins within.
  EXPECT_EQ(All(), Filled(4, '\0'));
}

TEST_F(BoundsCheckedTest, RefusesToCopyFromAnAreaThatReachesIntoTheDestination) {
  EXPECT_NE(memcpy_s(buffer_ + 2, 4, buffer_, 3), 0);
  EXPECT_EQ(All(), std::string("AB\0\0\0\0GH", 8));
}

TEST_F(BoundsCheckedTest, RefusesToCopyAnAreaOntoItself) {
  EXPECT_NE(memcpy_s(buffer_, 4, buffer_, 4), 0);
  EXPECT_EQ(All(), Filled(4, '\0'));
}

TEST_F(BoundsCheckedTest, CopiesBetweenAreasThatJustTouch) {
  EXPECT_EQ(memcpy_s(buffer_, 3, buffer_ + 3, 3), 0);
  EXPECT_EQ(All(), "DEFDEFGH");
  EXPECT_EQ(memcpy_s(buffer_ + 3, 3, buffer_, 3), 0);
  EXPECT_EQ(All(), "DEFDEFGH");
}

TEST_F(BoundsCheckedTest, SetsWhatFits) {
  EXPECT_EQ(memset_s(buffer_, 4, 'x', 3), 0);
  EXPECT_EQ(All(), Filled(3, 'x'));
  EXPECT_EQ(memset_s(buffer_, 4, 0x100 + 'y', 4), 0);  // The lowest byte counts.
  EXPECT_EQ(All(), Filled(4, 'y'));
}

TEST_F(BoundsCheckedTest, SetsNothingForACountOfZero) {
  EXPECT_EQ(memset_s(buffer_, 4, 'x', 0), 0);
  EXPECT_EQ(memset_s(buffer_, 0, 'x', 0), 0);
  EXPECT_EQ(All(), "ABCDEFGH");
}

TEST_F(BoundsCheckedTest, RefusesToSetNowhere) {
  EXPECT_NE(memset_s(nullptr, 4, 'x', 4), 0);
  EXPECT_NE(memset_s(nullptr, 0, 'x', 0), 0);
}

TEST_F(BoundsCheckedTest, RefusesToSetMoreThanThereIsRoomForAndSetsAllOfIt) {
  EXPECT_NE(memset_s(buffer_, 4, 'x', 5), 0);
  EXPECT_EQ(All(), Filled(4, 'x'));
}

TEST_F(BoundsCheckedTest, RefusesToSetInNoRoom) {
  EXPECT_NE(memset_s(buffer_, 0, 'x', 1), 0);
  EXPECT_EQ(All(), "ABCDEFGH");
}

TEST_F(BoundsCheckedTest, RefusesNegativeSizesAndSetsNothing) {
  EXPECT_NE(memset_s(buffer_, kHalf + 1, 'x', 4), 0);
  EXPECT_NE(memset_s(buffer_, 4, 'x', kHalf + 1), 0);
  EXPECT_NE(memset_s(buffer_, 4, 'x', static_cast<std::size_t>(-1)), 0);
  EXPECT_EQ(All(), "ABCDEFGH");
}

using Tokenizer = char* (*)(char*, const char*, char**);

/// The tokens of `text`, one more call than there are, and what the text is like afterwards.
std::vector<std::string> Tokens(Tokenizer tokenizer, std::string text, const char* delimiters) {
  std::vector<std::string> tokens;
  char* context = nullptr;
  char* token = tokenizer(text.data(), delimiters, &context);
  while (token != nullptr) {
    tokens.emplace_back(token);
    token = tokenizer(nullptr, delimiters, &context);
  }
  EXPECT_EQ(tokenizer(nullptr, delimiters, &context), nullptr);
  tokens.push_back(text);
  return tokens;
}

TEST(StrtokTest, SplitsAtAnyDelimiterAndWritesNulThere) {
  EXPECT_EQ(Tokens(strtok_s, ";a;;bc,d;", ";,"),
            (std::vector<std::string>{"a", "bc", "d", std::string(";a\0;bc\0d\0", 9)}));
}

TEST(StrtokTest, SplitsAsTheSystemDoes) {
  for (const std::string text :
       {"", ";", ";;;", "a", "a;", ";a", "a;b", "a;;b", ";;a;b;;", "a,b;c", " a b ", "1;int;n;0"}) {
    for (const char* const delimiters : {"", ";", ",;", " ", "abc"}) {
      EXPECT_EQ(Tokens(strtok_s, text, delimiters), Tokens(strtok_r, text, delimiters))
          << testing::PrintToString(text) << " at " << testing::PrintToString(delimiters);
    }
  }
}

TEST(StrtokTest, TakesOtherDelimitersOnTheWay) {
  char text[] = "a;b c;d";
  char* context = nullptr;
  EXPECT_STREQ(strtok_s(text, ";", &context), "a");
  EXPECT_STREQ(strtok_s(nullptr, " ", &context), "b");
  EXPECT_STREQ(strtok_s(nullptr, "", &context), "c;d");
}

TEST(StrtokTest, KeepsItsPlaceInTheContextAlone) {
  char first[] = "a;b";
  char second[] = "x;y";
  char* firstContext = nullptr;
  char* secondContext = nullptr;
  EXPECT_STREQ(strtok_s(first, ";", &firstContext), "a");
  EXPECT_STREQ(strtok_s(second, ";", &secondContext), "x");
  EXPECT_STREQ(strtok_s(nullptr, ";", &firstContext), "b");
  EXPECT_STREQ(strtok_s(nullptr, ";", &secondContext), "y");
}

TEST(StrtokTest, FindsNothingWhereAnArgumentIsMissing) {
  char text[] = "a;b";
  char* context = nullptr;
  EXPECT_EQ(strtok_s(nullptr, ";", &context), nullptr);
  EXPECT_EQ(strtok_s(text, nullptr, &context), nullptr);
  EXPECT_EQ(strtok_s(text, ";", nullptr), nullptr);
  EXPECT_EQ(context, nullptr);
  EXPECT_STREQ(text, "a;b");
}

}  // namespace
