#include <gmock/gmock.h>

#include <ostream>
#include <string>

#include "LineRecovery.h"

namespace vmetrics {

void PrintTo(const LineRecovery::Counts& counts, std::ostream* out) {
  *out << counts.whole << " whole, " << counts.recovered << " recovered, " << counts.fragments
       << " fragments";
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Counts = LineRecovery::Counts;

/// With what could lead a search for lines astray: braces, quotes and line beginnings in strings.
const std::string kFirst =
    R"({"eventId":"a\\","args":{"x":[{"y":{}},2.50],"t":"}{\"eventId\":\"{\"","e":"\\\"}"},"z":[]})";
const std::string kSecond = R"({"eventId":"b","args":{"o":{"eventId":"c"}}})";

class LineRecoveryTest : public testing::Test {
 protected:
  const std::vector<std::string_view>& Take(std::string line) {
    line_ = std::move(line);
    return recovery_.TextsOf(line_);
  }

  void ExpectTotal(const Counts& counts) { EXPECT_EQ(recovery_.Total(), counts); }

  LineRecovery recovery_;
  std::string line_;
};

TEST_F(LineRecoveryTest, WholeLineIsItsText) {
  EXPECT_THAT(Take(kFirst), ElementsAre(kFirst));
  ExpectTotal({1, 0, 0});
}

TEST_F(LineRecoveryTest, BlanksBehindTheTextDoNotMatter) {
  EXPECT_THAT(Take(kSecond + " \t\r"), ElementsAre(kSecond));
  ExpectTotal({1, 0, 0});
}

TEST_F(LineRecoveryTest, BlankLineIsNothing) {
  EXPECT_THAT(Take(""), IsEmpty());
  EXPECT_THAT(Take(" \r"), IsEmpty());
  ExpectTotal({0, 0, 0});
}

TEST_F(LineRecoveryTest, PrefixOfALoggerIsPassedOver) {
  for (const std::string prefix :
       {"2023-11-14T22:13:20.852Z [client] INFO metrics: ", "\"", "[", "}", "\\"}) {
    EXPECT_THAT(Take(prefix + kFirst), ElementsAre(kFirst)) << prefix;
  }
  ExpectTotal({5, 0, 0});
}

TEST_F(LineRecoveryTest, PrefixOfAnObjectOfAnotherKindIsPassedOverToo) {
  EXPECT_THAT(Take("metrics: {}"), ElementsAre("{}"));
  EXPECT_THAT(Take(R"(metrics: { "a" : 1 })"), ElementsAre(R"({ "a" : 1 })"));
  ExpectTotal({2, 0, 0});
}

// Wherever the first line was cut, the second comes out, and nothing else.
TEST_F(LineRecoveryTest, LineGluedToAFragmentIsRecovered) {
  for (std::size_t cut = 1; cut < kFirst.size(); ++cut) {
    EXPECT_THAT(Take(kFirst.substr(0, cut) + kSecond), ElementsAre(kSecond)) << line_;
  }
  ExpectTotal({0, kFirst.size() - 1, kFirst.size() - 1});
}

// Wherever the second line was cut, the first comes out, and nothing else.
TEST_F(LineRecoveryTest, LineInFrontOfAFragmentIsRecovered) {
  for (std::size_t cut = 1; cut < kFirst.size(); ++cut) {
    EXPECT_THAT(Take(kSecond + kFirst.substr(0, cut)), ElementsAre(kSecond)) << line_;
  }
  ExpectTotal({0, kFirst.size() - 1, kFirst.size() - 1});
}

TEST_F(LineRecoveryTest, LineBetweenFragmentsIsRecovered) {
  for (std::size_t cut = 1; cut < kFirst.size(); ++cut) {
    EXPECT_THAT(Take(kFirst.substr(0, cut) + kSecond + R"({"eventId":"e","ti)"),
                ElementsAre(kSecond))
        << line_;
  }
  ExpectTotal({0, kFirst.size() - 1, 2 * (kFirst.size() - 1)});
}

TEST_F(LineRecoveryTest, LinesOnBothSidesOfAFragmentAreRecovered) {
  EXPECT_THAT(Take(kFirst + R"({"eventId":)" + kSecond + kFirst.substr(0, 40) + kSecond),
              ElementsAre(kFirst, kSecond, kSecond));
  ExpectTotal({0, 3, 2});
}

TEST_F(LineRecoveryTest, SuffixIsPassedOver) {
  const std::string line = "INFO " + kFirst;
  for (const std::string suffix : {"\033[0m", " (1.2 ms)", "\"", "]", "\\", ",", ":"}) {
    EXPECT_THAT(Take(line + suffix), ElementsAre(kFirst)) << suffix;
  }
  ExpectTotal({7, 0, 0});
}

TEST_F(LineRecoveryTest, SuffixOfAFragmentsLineIsPassedOver) {
  EXPECT_THAT(Take(kFirst.substr(0, 12) + kSecond + "\033[0m"), ElementsAre(kSecond));
  ExpectTotal({0, 1, 1});
}

TEST_F(LineRecoveryTest, PrefixesOfGluedLinesArePassedOver) {
  EXPECT_THAT(Take("INFO " + kFirst + "INFO " + kSecond), ElementsAre(kFirst, kSecond));
  ExpectTotal({0, 2, 0});
}

TEST_F(LineRecoveryTest, LineInFrontOfTheRestOfAnotherIsRecovered) {
  EXPECT_THAT(Take(kFirst + R"(stamp":1700000000240,"args":{}})"), ElementsAre(kFirst));
  EXPECT_THAT(Take(kFirst + "}"), ElementsAre(kFirst));
  ExpectTotal({0, 2, 2});
}

TEST_F(LineRecoveryTest, PayloadWithinAFragmentIsNotALine) {
  for (const std::string rest : {R"(,"x":1)", R"(},"args":)", R"( ,)", "}", "]"}) {
    EXPECT_THAT(Take(R"({"eventId":"b","args":{"o":{"eventId":"c"})" + rest + "x"), IsEmpty());
  }
  ExpectTotal({0, 0, 5});
}

TEST_F(LineRecoveryTest, WhatOnlyBeginsAsALineIsNoText) {
  EXPECT_THAT(Take(R"({"eventId":x} and so on)"), IsEmpty());
  EXPECT_THAT(Take(R"({"eventId":[}]} and so on)"), IsEmpty());
  ExpectTotal({0, 0, 2});
}

TEST_F(LineRecoveryTest, FragmentBehindAPrefixIsAFragment) {
  EXPECT_THAT(Take(R"(INFO {"eventId":"a)" + kSecond), ElementsAre(kSecond));
  ExpectTotal({0, 1, 1});
}

TEST_F(LineRecoveryTest, LineGluedToSeveralFragmentsIsRecovered) {
  EXPECT_THAT(Take(kFirst.substr(0, 7) + kSecond.substr(0, 20) + kFirst), ElementsAre(kFirst));
  ExpectTotal({0, 1, 1});
}

TEST_F(LineRecoveryTest, StepWithoutAnEventIsRecoveredWhereAValueCouldStand) {
  const std::string step = R"({"timestamp":1700000000240,"terminalId":"0"})";
  EXPECT_THAT(Take(R"({"eventId":)" + step), ElementsAre(step));
  ExpectTotal({0, 1, 1});
}

TEST_F(LineRecoveryTest, WholeLinesGluedTogetherAreTakenApart) {
  EXPECT_THAT(Take(kFirst + kSecond + kFirst), ElementsAre(kFirst, kSecond, kFirst));
  ExpectTotal({0, 3, 0});
}

TEST_F(LineRecoveryTest, WholeLinesBehindAFragmentAreTakenApart) {
  EXPECT_THAT(Take(kFirst.substr(0, 30) + kSecond + kFirst), ElementsAre(kSecond, kFirst));
  ExpectTotal({0, 2, 1});
}

// The inner object is whole and ends where the line ends, but belongs to the fragment.
TEST_F(LineRecoveryTest, MemberOfAFragmentIsNotALine) {
  for (const std::string fragment :
       {R"({"eventId":"a","args":{"fps":60})", R"({"eventId":"a","args":{"list":[{"fps":60})",
        R"({"eventId":"a","args":{"list":[1, {"fps":60})"}) {
    EXPECT_THAT(Take(fragment), IsEmpty());
    EXPECT_THAT(Take(fragment + kSecond), ElementsAre(kSecond));
  }
  ExpectTotal({0, 3, 6});
}

TEST_F(LineRecoveryTest, BareFragmentIsNoText) {
  for (std::size_t cut = 1; cut < kFirst.size(); ++cut) {
    EXPECT_THAT(Take(kFirst.substr(0, cut)), IsEmpty()) << line_;
  }
  ExpectTotal({0, 0, kFirst.size() - 1});
}

TEST_F(LineRecoveryTest, RestOfALineIsNoText) {
  EXPECT_THAT(Take(R"(stamp":1700000000240,"args":{}})"), IsEmpty());
  EXPECT_THAT(Take(R"(})"), IsEmpty());
  ExpectTotal({0, 0, 2});
}

TEST_F(LineRecoveryTest, OtherTextsAreNoTexts) {
  for (const std::string line : {"started", "[1]", "[{}]", "{a}", R"({"a":})", R"([{"a":1}}])"}) {
    EXPECT_THAT(Take(line), IsEmpty()) << line;
  }
  ExpectTotal({0, 0, 6});
}

TEST_F(LineRecoveryTest, BinaryBytesInFrontOfALineArePassedOver) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '{' && byte != '\n') {
      bytes += static_cast<char>(byte);
    }
  }
  EXPECT_THAT(Take(bytes + kFirst), ElementsAre(kFirst));
  EXPECT_THAT(Take(std::string(4096, '\0') + kFirst), ElementsAre(kFirst));
  EXPECT_THAT(Take(bytes), IsEmpty());
  ExpectTotal({2, 0, 1});
}

// Four megabytes each. A search that began anew at each brace or quote would take hours.
TEST_F(LineRecoveryTest, HostileLinesTakeNoLongerThanOthers) {
  constexpr std::size_t kSize = std::size_t{4} << 20;
  const auto repeated = [](const std::string& part) {
    std::string text;
    while (text.size() < kSize) {
      text += part;
    }
    return text;
  };
  for (const std::string part :
       {"{", "{\"", "{\"a\":", "}", "\"}", "\\", "\\\"", "{\"a", "[{", ":{}"}) {
    EXPECT_THAT(Take(repeated(part) + "x}"), IsEmpty()) << part;
    EXPECT_THAT(Take(repeated(part) + kSecond), ElementsAre(kSecond)) << part;
  }
  for (const std::string part : {R"({"eventId":)", R"({"eventId":")", R"({"eventId":1)"}) {
    EXPECT_THAT(Take(repeated(part)), IsEmpty()) << part;
    EXPECT_THAT(Take(kSecond + repeated(part)), ElementsAre(kSecond)) << part;
  }
  EXPECT_THAT(Take(repeated(R"({"eventId":)") + "1" + std::string(kSize, '}') + "x"), IsEmpty());
  EXPECT_THAT(Take(repeated(R"({"eventId":{} )")), IsEmpty());
  EXPECT_EQ(Take(repeated("{}")).size(), kSize / 2);
  EXPECT_EQ(Take(repeated("x{}")).size(), 1U);
}

}  // namespace
}  // namespace vmetrics
