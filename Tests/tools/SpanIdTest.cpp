#include <gtest/gtest.h>

#include <string>

#include "check/SpanId.h"

namespace vmetrics {
namespace {

const std::string kText = "0123e567-89ab-cdef-fedc-ba9876543210";

TEST(SpanIdTest, IsItsBits) {
  const auto id = ParseSpanId(kText);
  ASSERT_TRUE(id);
  EXPECT_EQ(id->high, 0x0123E56789ABCDEFU);
  EXPECT_EQ(id->low, 0xFEDCBA9876543210U);
}

TEST(SpanIdTest, BecomesItsTextAgain) {
  for (const std::string text :
       {"0123e567-89ab-cdef-fedc-ba9876543210", "00000000-0000-0000-0000-000000000000",
        "ffffffff-ffff-ffff-ffff-ffffffffffff"}) {
    EXPECT_EQ(ToText(*ParseSpanId(text)), text);
  }
}

TEST(SpanIdTest, HasExactlyItsSize) {
  EXPECT_FALSE(ParseSpanId(""));
  EXPECT_FALSE(ParseSpanId(kText.substr(1)));
  EXPECT_FALSE(ParseSpanId(kText + "0"));
}

TEST(SpanIdTest, EachCharacterCounts) {
  for (std::size_t at = 0; at < kText.size(); ++at) {
    for (const char other : {'/', ':', '`', 'g', 'A', ' ', '\0', kText[at] == '-' ? '0' : '-'}) {
      std::string text = kText;
      text[at] = other;
      EXPECT_FALSE(ParseSpanId(text)) << text;
    }
  }
}

}  // namespace
}  // namespace vmetrics
