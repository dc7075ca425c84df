// Text fields of records as they come from elsewhere: without an end, not UTF-8, with control
// characters. Whatever they hold, the line is one line of valid JSON.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FrameworkTest.h"
#include "RecordRenderers.h"

namespace {

using namespace std::string_literals;
using testing::IsEmpty;

const std::string kReplacement = "\xEF\xBF\xBD";  // U+FFFD

/// What the text members of a rendered record hold, in JSON's spelling.
struct Texts {
  std::string eventId;
  std::string transactionId;
  std::string businessType;
  std::string serviceName;
  std::string userName;
};

std::string Line(const Texts& texts, const std::string& arguments = "") {
  return R"({"eventId":")" + texts.eventId +
         R"(","timestamp":1700000000000,"terminalId":"0","type":"0","transactionId":")" +
         texts.transactionId + R"(","businessType":")" + texts.businessType +
         R"(","serviceName":")" + texts.serviceName + R"(","userName":")" + texts.userName + "\"" +
         arguments + "}";
}

/// A record whose fields can be told apart, and its line.
TextRecord ShortTexts() {
  TextRecord record;
  record.eventId = "e";
  record.userName = "u";
  record.transactionId = "t";
  record.businessType = "b";
  record.serviceName = "s";
  return record;
}

Texts ShortTextsRendered() { return {"e", "t", "b", "s", "u"}; }

using RecordTextTest = FrameworkTest;

// Fields that fill their width --------------------------------------------------------------------

TEST_F(RecordTextTest, ReadsATextThatLeavesRoomForItsEnd) {
  TextRecord record;
  record.eventId = std::string(127, 'e');
  record.userName = std::string(127, 'u');
  record.transactionId = std::string(63, 't');
  record.businessType = std::string(31, 'b');
  record.serviceName = std::string(31, 's');
  EXPECT_EQ(RenderText(record), Line({record.eventId, record.transactionId, record.businessType,
                                      record.serviceName, record.userName}));
}

TEST_F(RecordTextTest, RunsOnFromAFullFieldIntoTheNext) {
  struct Field {
    std::string TextRecord::*text;
    std::string Texts::*rendered;
    std::string full;
    std::string next;
  };
  for (const Field& field :
       {Field{&TextRecord::eventId, &Texts::eventId, std::string(128, 'E'), "u"},
        {&TextRecord::userName, &Texts::userName, std::string(128, 'U'), "t"},
        {&TextRecord::transactionId, &Texts::transactionId, std::string(64, 'T'), "b"},
        {&TextRecord::businessType, &Texts::businessType, std::string(32, 'B'), "s"}}) {
    TextRecord record = ShortTexts();
    record.*field.text = field.full;
    Texts texts = ShortTextsRendered();
    texts.*field.rendered = field.full + field.next;
    EXPECT_EQ(RenderText(record), Line(texts));
  }
}

TEST_F(RecordTextTest, EndsAFullEventIdBeforeAnEmptyUserName) {
  TextRecord record = ShortTexts();
  record.eventId = std::string(128, 'e');
  record.userName = "";
  Texts texts = ShortTextsRendered();
  texts.eventId = std::string(128, 'e');
  texts.userName = "";
  EXPECT_EQ(RenderText(record), Line(texts));
}

TEST_F(RecordTextTest, LooksTheEventUpUnderAllThatWasRead) {
  VMetrics::GetMetricsStringMap()[std::string(128, 'e') + "u"] = {"string", "n", "0"};
  TextRecord record = ShortTexts();
  record.eventId = std::string(128, 'e');
  record.value = "v";
  Texts texts = ShortTextsRendered();
  texts.eventId = std::string(128, 'e') + "u";
  EXPECT_EQ(RenderText(record), Line(texts, R"(,"args":{"n":"v"})"));
}

TEST_F(RecordTextTest, RunsOnFromTheServiceNameIntoTheLength) {
  struct Case {
    std::size_t length;
    std::string bytes;  ///< Of the length up to its first zero, in JSON's spelling.
  };
  for (const Case& run : {Case{0, ""},
                          {7, "\\u0007"},
                          {65, "A"},
                          {34, "\\\""},
                          {256, ""},
                          {255, kReplacement},
                          {0x4142, "BA"},
                          {0xA9C3, "\u00E9"},
                          {65535, kReplacement + kReplacement}}) {
    TextRecord record = ShortTexts();
    record.serviceName = std::string(32, 's');
    record.value = std::string(run.length, 'v');
    Texts texts = ShortTextsRendered();
    texts.serviceName = std::string(32, 's') + run.bytes;
    EXPECT_EQ(RenderText(record), Line(texts)) << run.length;
  }
}

TEST_F(RecordTextTest, RunsOnThroughAllFieldsIntoTheLength) {
  TextRecord record;
  record.eventId = std::string(128, 'e');
  record.userName = std::string(128, 'u');
  record.transactionId = std::string(64, 't');
  record.businessType = std::string(32, 'b');
  record.serviceName = std::string(32, 's');
  record.value = std::string(65535, 'v');
  const std::string service = record.serviceName + kReplacement + kReplacement;
  const std::string business = record.businessType + service;
  const std::string transaction = record.transactionId + business;
  const std::string user = record.userName + transaction;
  EXPECT_EQ(RenderText(record),
            Line({record.eventId + user, transaction, business, service, user}));
}

// Fields with anything in them --------------------------------------------------------------------

struct HostileText {
  std::string bytes;
  std::string json;
};

const std::vector<HostileText>& HostileTexts() {
  static const std::vector<HostileText> texts = {
      {"%s%n%d", "%s%n%d"},
      {"a\nb\r\tc", R"(a\nb\r\tc)"},
      {"\x01\x1F\x7F\b\f", R"(\u0001\u001f\u007f\b\f)"},
      {"\"},{\"\\", R"(\"},{\"\\)"},
      {"尝试", "尝试"},
      {"a\xFF\xC0\xAF", "a" + kReplacement + kReplacement + kReplacement},
      {"\xE5\xB0", kReplacement},                                    // Cut short.
      {"\xED\xA0\x80", kReplacement + kReplacement + kReplacement},  // A surrogate.
      {"\xF4\x90\x80\x80", kReplacement + kReplacement + kReplacement + kReplacement},
      {"\x80x", kReplacement + "x"},
      {"a\0b"s, "a"}};
  return texts;
}

TEST_F(RecordTextTest, RendersAnyTextInAnyFieldAsValidJson) {
  struct Field {
    std::string TextRecord::*text;
    std::string Texts::*rendered;
  };
  for (const auto& [field, rendered] : {Field{&TextRecord::eventId, &Texts::eventId},
                                        {&TextRecord::userName, &Texts::userName},
                                        {&TextRecord::transactionId, &Texts::transactionId},
                                        {&TextRecord::businessType, &Texts::businessType},
                                        {&TextRecord::serviceName, &Texts::serviceName}}) {
    for (const HostileText& hostile : HostileTexts()) {
      TextRecord record = ShortTexts();
      record.*field = hostile.bytes;
      Texts texts = ShortTextsRendered();
      texts.*rendered = hostile.json;
      EXPECT_EQ(RenderText(record), Line(texts));
    }
  }
  EXPECT_THAT(FakePlatform::LogLines(), IsEmpty());
}

TEST_F(RecordTextTest, RendersAnyTextInAStringValueAsValidJson) {
  VMetrics::GetMetricsStringMap()["e"] = {"string", "n", "0"};
  for (const HostileText& hostile : HostileTexts()) {
    TextRecord record = ShortTexts();
    record.value = hostile.bytes;
    EXPECT_EQ(RenderText(record),
              Line(ShortTextsRendered(), R"(,"args":{"n":")" + hostile.json + "\"}"));
  }
}

TEST_F(RecordTextTest, RendersTheLongestStringOfEscapesWhole) {
  VMetrics::GetMetricsStringMap()["e"] = {"string", "n", "0"};
  TextRecord record = ShortTexts();
  record.value = std::string(65535, '\x01');
  std::string escapes;
  for (int i = 0; i < 65535; ++i) {
    escapes += "\\u0001";
  }
  EXPECT_EQ(RenderText(record), Line(ShortTextsRendered(), R"(,"args":{"n":")" + escapes + "\"}"));
}

}  // namespace
