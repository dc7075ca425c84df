#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "records/HexReader.h"

namespace vmetrics {
namespace {

/// The bytes of a text that comes in pieces of `size`; ends with the fault, if there is one.
std::string Read(std::string_view text, std::size_t size = 1000) {
  HexReader reader;
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); at += size) {
    if (!reader.Add(text.substr(at, size), bytes)) {
      return bytes + reader.Fault();
    }
  }
  return reader.Finish() ? bytes : bytes + reader.Fault();
}

TEST(HexReaderTest, DigitsOfEitherCaseAreRead) { EXPECT_EQ(Read("4a4B6c6D"), "JKlm"); }

TEST(HexReaderTest, BlanksStandAnywhere) { EXPECT_EQ(Read(" 41\t42\r\n43\v44\f4 5\n\n"), "ABCDE"); }

TEST(HexReaderTest, CommentsEndWithTheirLine) {
  EXPECT_EQ(Read("# all of it: 40\n41 # one, g\r\n4 # half\n2#"), "AB");
}

TEST(HexReaderTest, AnyCuttingIntoPiecesGivesTheSame) {
  const std::string_view text = "# first\n41 4\n2 # second\n  4g";
  for (std::size_t size = 1; size <= text.size(); ++size) {
    EXPECT_EQ(Read(text, size), "AB4:4: 'g' is no hexadecimal digit") << size;
  }
}

TEST(HexReaderTest, CharacterThatCannotBeShownIsNamedByItsNumber) {
  EXPECT_EQ(Read(std::string_view("41\0", 3)), "A1:3: byte 0x00 is no hexadecimal digit");
  EXPECT_EQ(Read("\n\xEF\xBB\xBF"), "2:1: byte 0xEF is no hexadecimal digit");
}

TEST(HexReaderTest, LettersBesideTheDigitsAreNone) {
  for (const char* letter : {"/", ":", "@", "G", "`", "g"}) {
    EXPECT_EQ(Read(letter), std::string("1:1: '") + letter + "' is no hexadecimal digit");
  }
}

TEST(HexReaderTest, LinesThatOdLeavesOutAreExplained) {
  EXPECT_EQ(Read("41\n*\n"), "A2:1: '*' stands for lines that were left out; od -v shows them");
}

TEST(HexReaderTest, HalfAByteIsAFault) {
  EXPECT_EQ(Read("41 4"), "A1:4: the text ends in the middle of a byte, which has two digits");
}

TEST(HexReaderTest, NothingIsNoBytes) { EXPECT_EQ(Read(""), ""); }

}  // namespace
}  // namespace vmetrics
