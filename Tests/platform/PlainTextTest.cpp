#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "PlainText.h"

namespace {

/// How many bytes of `text` come before the first that is not plain, counted one by one.
std::size_t PlainBytes(const std::string& text) {
  std::size_t count = 0;
  while (count < text.size() && PlainText::IsPlain(text[count])) {
    ++count;
  }
  return count;
}

/// Copies from memory that ends with the text, into room that ends where it may.
void ExpectCopied(const std::string& text) {
  const std::vector<char> source(text.begin(), text.end());
  std::vector<char> out(text.size() + 8);
  const std::size_t count = PlainText::CopyPlain(out.data(), source.data(), source.size());
  ASSERT_EQ(count, PlainBytes(text)) << testing::PrintToString(text);
  ASSERT_EQ(std::string(out.data(), count), text.substr(0, count));
}

TEST(PlainTextTest, AsciiIsPlainButQuoteBackslashAndControlCharacters) {
  for (int byte = 0; byte < 256; ++byte) {
    const bool plain = byte >= 0x20 && byte < 0x7F && byte != '"' && byte != '\\';
    EXPECT_EQ(PlainText::IsPlain(static_cast<char>(byte)), plain) << byte;
  }
}

TEST(PlainTextTest, CopiesPlainTextOfAnyLength) {
  for (std::size_t size = 0; size <= 40; ++size) {
    ExpectCopied(std::string("abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLMNO").substr(0, size));
  }
}

TEST(PlainTextTest, StopsAtTheFirstByteThatIsNotPlain) {
  for (std::size_t size = 1; size <= 24; ++size) {
    for (std::size_t at = 0; at < size; ++at) {
      for (int byte = 0; byte < 256; ++byte) {
        std::string text(size, '~');
        text[at] = static_cast<char>(byte);
        ExpectCopied(text);
      }
    }
  }
}

TEST(PlainTextTest, IsNotMisledByTheByteBehindAStop) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      ExpectCopied(
          {'a', static_cast<char>(first), static_cast<char>(second), 'b', 'c', 'd', 'e', 'f', 'g'});
    }
  }
}

}  // namespace
