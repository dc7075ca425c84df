// Every line that the library writes, read by an independent parser.

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

#include "FileContent.h"
#include "JsonLines.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"

namespace {

using boost::json::object;
using testing::ElementsAre;
using testing::SizeIs;

/// What the probe's hard text reads as: the byte that is no UTF-8 has become U+FFFD.
const std::string kHardText = "\"\\\b\f\n\r\t\x01\x1F\x7F/%s%n\xC3\xA4\xF0\x9F\x98\x80\xEF\xBF\xBD";

class MetricsJsonTest : public testing::Test {
 protected:
  MetricsJsonTest() {
    const ProbeResult result = RunProbe(directory_, {"everything"});
    EXPECT_TRUE(Succeeded(result));
    lines_ = ParseJsonLines(result.Metrics());
    rendered_ = result.Values("rendered");
    lines_.resize(8);  // Only after a failure of the parsing are there fewer.
  }

  /// The members in front of "args" of a record with an event ID.
  static void ExpectHeader(const object& line, const std::string& event, const std::string& service,
                           const std::string& type) {
    EXPECT_EQ(TextOf(line, "eventId"), event);
    EXPECT_EQ(TextOf(line, "serviceName"), service);
    EXPECT_EQ(TextOf(line, "type"), type);
    EXPECT_EQ(TextOf(line, "terminalId"), "0");
    EXPECT_EQ(TextOf(line, "transactionId"), "");
    EXPECT_EQ(TextOf(line, "businessType"), "");
    EXPECT_EQ(TextOf(line, "userName"), "");
    EXPECT_GT(line.at("timestamp").to_number<unsigned long>(), 1'600'000'000'000U);
  }

  static std::string Arguments(const object& line) {
    return boost::json::serialize(line.at("args"));
  }

  static object ArgumentsOf(const object& line) { return line.at("args").as_object(); }

  TemporaryDirectory directory_;
  std::vector<object> lines_;
  std::vector<std::string> rendered_;
};

TEST_F(MetricsJsonTest, MembersComeInTheirOrder) {
  const std::vector<std::string> keys = {"eventId",     "timestamp",     "terminalId",
                                         "type",        "transactionId", "businessType",
                                         "serviceName", "userName",      "args"};
  for (const std::size_t i : std::vector<std::size_t>{0, 1, 2, 4, 5, 6}) {
    EXPECT_EQ(KeysOf(lines_[i]), keys) << i;
  }
  EXPECT_THAT(KeysOf(lines_[7]), ElementsAre("eventId", "timestamp", "terminalId", "type",
                                             "transactionId", "spanId", "args"));
}

TEST_F(MetricsJsonTest, SubmissionNestsItsPayload) {
  ExpectHeader(lines_[0], "nox_user_connect", kHardText, "2");
  EXPECT_EQ(Arguments(lines_[0]), R"({"number":1234567})");
}

TEST_F(MetricsJsonTest, BizboxCreationHasItsMembers) {
  ExpectHeader(lines_[1], "nox_user_connect", "zelviewer", "2");
  const object step = ArgumentsOf(lines_[1]);
  EXPECT_THAT(KeysOf(step), ElementsAre("stepName", "source", "parentStepName", "isSuccess",
                                        "startTime", "endTime", "resultMsg", "usedTime"));
  EXPECT_EQ(TextOf(step, "stepName"), "bizboxCreation");
  EXPECT_EQ(step.at("startTime"), step.at("endTime"));
  EXPECT_EQ(step.at("usedTime"), 0);
}

TEST_F(MetricsJsonTest, TimedOutFirstPackHasItsMembers) {
  ExpectHeader(lines_[2], "nox_user_connect", "zelviewer", "2");
  const object step = ArgumentsOf(lines_[2]);
  EXPECT_THAT(KeysOf(step), ElementsAre("stepName", "source", "parentStepName", "isSuccess",
                                        "startTime", "endTime", "usedTime", "errorMsg"));
  EXPECT_EQ(step.at("isSuccess"), 0);
  EXPECT_EQ(step.at("startTime"), 1234567);
  EXPECT_EQ(step.at("usedTime").to_number<unsigned long>(),
            step.at("endTime").to_number<unsigned long>() - 1234567);
  EXPECT_EQ(TextOf(step, "errorMsg"), "timeout");
}

// Its event is not built in, so there is nothing to say what its value is.
TEST_F(MetricsJsonTest, OperationWithoutRegistrationHasNoArguments) {
  ExpectHeader(lines_[3], "nox_user_operation", "ZELVIEWER", "2");
  EXPECT_THAT(KeysOf(lines_[3]),
              ElementsAre("eventId", "timestamp", "terminalId", "type", "transactionId",
                          "businessType", "serviceName", "userName"));
}

TEST_F(MetricsJsonTest, SlowModuleHasItsMembers) {
  ExpectHeader(lines_[4], "VEVENT_MSG_PROCESS_SLOW", "", "0");
  const object slow = ArgumentsOf(lines_[4]);
  EXPECT_THAT(KeysOf(slow), ElementsAre("moduleName", "name", "msgSrcModuleId", "msgDstModuleId",
                                        "msgType", "cost"));
  EXPECT_EQ(TextOf(slow, "moduleName"), kHardText);
  EXPECT_EQ(TextOf(slow, "name"), kHardText);
  EXPECT_EQ(slow.at("msgSrcModuleId"), 1234567);
  EXPECT_EQ(slow.at("msgDstModuleId"), -1234567);
  EXPECT_EQ(slow.at("msgType"), 2345678);
  EXPECT_EQ(slow.at("cost"), 4294967295);
}

TEST_F(MetricsJsonTest, ChangeOfTransportHasItsMembers) {
  ExpectHeader(lines_[5], "VEVENT_MSG_TRANS_CHANGE", "", "3");
  const object change = ArgumentsOf(lines_[5]);
  EXPECT_THAT(KeysOf(change), ElementsAre("transChangeReason", "errorCode", "averageLatancy"));
  EXPECT_EQ(TextOf(change, "transChangeReason"), kHardText);
  EXPECT_EQ(change.at("errorCode"), -1234567);
  EXPECT_EQ(change.at("averageLatancy"), 1234567);
}

TEST_F(MetricsJsonTest, FailedUsbDriversHaveTheirText) {
  ExpectHeader(lines_[6], "VMETRICS_USB_DRIVER_ERROR", "service", "0");
  const object error = ArgumentsOf(lines_[6]);
  EXPECT_THAT(error, SizeIs(1));
  EXPECT_EQ(TextOf(error, "driverError"), "Init drivers error.");
}

TEST_F(MetricsJsonTest, StepHasItsMembers) {
  const object& line = lines_[7];
  EXPECT_EQ(TextOf(line, "eventId"), kHardText);
  EXPECT_EQ(TextOf(line, "transactionId"), "everything");
  EXPECT_EQ(TextOf(line, "terminalId"), "0");
  EXPECT_EQ(TextOf(line, "type"), "2");
  EXPECT_EQ(TextOf(line, "spanId"), FileContent::Read(directory_ / "spanId"));
  const object step = ArgumentsOf(line);
  EXPECT_THAT(KeysOf(step), ElementsAre("stepName", "errorCode", "isSuccess", "startTime",
                                        "endTime", "usedTime"));
  EXPECT_EQ(TextOf(step, "stepName"), kHardText);
  EXPECT_EQ(step.at("errorCode"), 1234567);
  EXPECT_EQ(step.at("isSuccess"), 0);
}

TEST_F(MetricsJsonTest, RenderedTextsAreJson) {
  std::string lines;
  for (const std::string& text : rendered_) {
    lines += text + "\n";
  }
  const std::vector<object> texts = ParseJsonLines(lines);
  ASSERT_THAT(texts, SizeIs(6));
  EXPECT_EQ(texts[0].at("diskUage"), 1234567.5);
  EXPECT_EQ(TextOf(texts[1], "driverError"), kHardText);
  EXPECT_EQ(texts[2].at("moduleId"), 4619);
  EXPECT_EQ(Arguments(texts[2]), R"({"displayFPS":1234567})");
  EXPECT_EQ(TextOf(texts[3], "terminalId"), "1234567");
  EXPECT_EQ(Arguments(texts[4]), R"({"number":1.23456725E6,"list":[1,2]})");
  EXPECT_EQ(TextOf(texts[4], "userName"), kHardText);
  EXPECT_EQ(TextOf(texts[5], "type"), "7654321");
  EXPECT_EQ(TextOf(ArgumentsOf(texts[5]), "driverError"), kHardText);
}

}  // namespace
