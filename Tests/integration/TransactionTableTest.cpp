// The table of open steps in a real process, from its first event to the process's last words.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "ProbeProcess.h"
#include "TemporaryDirectory.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

const std::string kTime = "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9:.]{12}Z ";
const std::string kSource = " \\[Framework/VMetrics/src/DotRecord:[0-9]+\\]\n";
const std::string kResourceClear = kTime + "INFO ResourceClear: ResourceClear" + kSource;

class TransactionTableTest : public testing::Test {
 protected:
  /// Runs the commands with all diagnostics on, and a remark on that channel when main ends.
  ProbeResult RunToTheLastWord(std::vector<std::string> commands) {
    commands.insert(commands.begin(), {"diagnostics", "3"});
    commands.insert(commands.end(), {"remark", "end of main"});
    const ProbeResult result = RunProbe(directory_, commands);
    EXPECT_TRUE(Succeeded(result));
    return result;
  }

  TemporaryDirectory directory_;
};

TEST_F(TransactionTableTest, ProcessThatTracedSaysOneLastWordAfterMain) {
  const ProbeResult result = RunToTheLastWord({"insert", "0", "t", "e", "s", "", "0"});
  EXPECT_THAT(result.diagnostics, MatchesRegex("end of main\n" + kResourceClear));
}

TEST_F(TransactionTableTest, LastWordIsNotAWarning) {
  const ProbeResult result =
      RunProbe(directory_, {"diagnostics", "2", "insert", "0", "t", "e", "s", "", "0"});
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(result.diagnostics, "");
}

// The table is made behind the argument checks, so there is nothing to clear.
TEST_F(TransactionTableTest, ProcessWhoseArgumentsWereRefusedHasNoLastWord) {
  const ProbeResult result =
      RunToTheLastWord({"insert", "0", "null", "e",    "s",    "",     "0",  //
                        "insert", "0", "t",    "null", "s",    "",     "0",  //
                        "insert", "0", "t",    "e",    "null", "",     "0",  //
                        "insert", "0", "t",    "e",    "s",    "null", "0"});
  EXPECT_THAT(result.Values("insert"), ElementsAre("-9999", "-9999", "-9999", "-9999"));
  const auto refusal = [](const std::string& name) {
    return kTime + "ERROR InsertRecord: " + name + " is nullptr" + kSource;
  };
  EXPECT_THAT(result.diagnostics,
              MatchesRegex(refusal("transactionId") + refusal("eventId") + refusal("stepName") +
                           refusal("spanParentId") + "end of main\n"));
}

TEST_F(TransactionTableTest, EmptyTransactionIdMakesTheTable) {
  const ProbeResult result = RunToTheLastWord({"insert", "0", "", "e", "s", "", "0"});
  EXPECT_THAT(result.Values("insert"), ElementsAre("-9999"));
  EXPECT_THAT(result.diagnostics, MatchesRegex(kTime + "ERROR InsertRecord: object is nullptr" +
                                               kSource + "end of main\n" + kResourceClear));
}

TEST_F(TransactionTableTest, ProcessThatNeverTracedSaysNothing) {
  EXPECT_EQ(RunToTheLastWord({}).diagnostics, "end of main\n");
}

TEST_F(TransactionTableTest, ProcessThatOnlyReadItsParentHasNoLastWord) {
  EXPECT_THAT(RunToTheLastWord({"parent"}).diagnostics,
              MatchesRegex(kTime + "INFO GetCurrentParentSpanId: parentSpanId = " + kSource +
                           "end of main\n"));
}

TEST_F(TransactionTableTest, HundredTransactionsKeepTheirSteps) {
  const ProbeResult result =
      RunToTheLastWord({"transactions", "100", "insert", "1", "transaction 0", "e", "s", "", "0",
                        "insert", "1", "transaction 99", "e", "s", "", "0"});
  EXPECT_THAT(result.Values("insert"), ElementsAre("0", "0"));
  EXPECT_THAT(result.diagnostics, MatchesRegex("end of main\n" + kResourceClear));
}

TEST_F(TransactionTableTest, HundredAndFirstDropsTheStepsOfAllOthers) {
  const ProbeResult result =
      RunToTheLastWord({"transactions", "101", "insert", "1", "transaction 0", "e", "s", "", "0",
                        "insert", "1", "transaction 100", "e", "s", "", "0"});
  EXPECT_THAT(result.Values("insert"), ElementsAre("-9996", "0"));
  const std::string refusal =
      kTime + "ERROR InsertRecord: stepName\\[s\\] has not startEvent" + kSource;
  EXPECT_THAT(result.diagnostics,
              MatchesRegex(kResourceClear + refusal + "end of main\n" + kResourceClear));
}

}  // namespace
