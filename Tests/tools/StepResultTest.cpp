#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "StepResult.h"

namespace vmetrics {
namespace {

class StepResultTest : public testing::Test {
 protected:
  /// Of a step with those members of "args".
  StepResult Of(const std::string& members) {
    const LogEntry* entry =
        parser_.Parse(R"({"spanId":"s","args":{"stepName":"a")" + members + "}}");
    EXPECT_NE(entry, nullptr) << members;
    return entry != nullptr ? StepResultOf(*entry) : StepResult{};
  }

  void ExpectFailure(const std::string& members, std::optional<std::int32_t> code) {
    EXPECT_TRUE(Of(members).isFailed) << members;
    EXPECT_EQ(Of(members).FailureCode(), code) << members;
  }

  LogEntryParser parser_;
};

TEST_F(StepResultTest, StepHasNotFailed) {
  for (const std::string members :
       {R"(,"errorCode":0,"isSuccess":1)", R"(,"errorCode":0)", R"(,"isSuccess":1)", "",
        R"(,"errorCode":"5","isSuccess":"0")", R"(,"errorCode":2147483648)"}) {
    EXPECT_FALSE(Of(members).isFailed) << members;
    EXPECT_EQ(Of(members).FailureCode(), std::nullopt) << members;
  }
}

TEST_F(StepResultTest, StepFailsByItsErrorCode) {
  ExpectFailure(R"(,"errorCode":-5,"isSuccess":0)", -5);
  ExpectFailure(R"(,"errorCode":2147483647,"isSuccess":1)", 2147483647);
  ExpectFailure(R"(,"errorCode":-2147483648)", INT32_MIN);
}

TEST_F(StepResultTest, StepFailsWithoutAnErrorCode) {
  ExpectFailure(R"(,"isSuccess":0)", std::nullopt);
  ExpectFailure(R"(,"errorCode":0,"isSuccess":0)", std::nullopt);
  ExpectFailure(R"(,"errorCode":-2147483649,"isSuccess":0)", std::nullopt);
}

TEST_F(StepResultTest, ErrorCodeIsToldAsItStands) {
  EXPECT_EQ(Of(R"(,"errorCode":0)").errorCode, 0);
  EXPECT_EQ(Of(R"(,"errorCode":2147483648)").errorCode, std::nullopt);
  EXPECT_EQ(Of("").errorCode, std::nullopt);
}

}  // namespace
}  // namespace vmetrics
