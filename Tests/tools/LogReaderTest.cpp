#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <vector>

#include "FileContent.h"
#include "GzipFile.h"
#include "LogReader.h"
#include "TemporaryDirectory.h"

namespace vmetrics {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LogReaderTest : public testing::Test {
 protected:
  /// A file of that name, in the directory of the test.
  std::string Write(const std::string& name, const std::string& content) {
    FileContent::Write(directory_ / name, content);
    return directory_ / name;
  }

  /// What is told, in its order: "log:1 a" for an entry with the member "id".
  std::vector<std::string> Read(const std::vector<std::string>& files) {
    told_.clear();
    reader_.Read(files);
    return told_;
  }

  LogReader::Hooks Hooks() {
    return {[this](const LinePlace& place, const LogEntry& entry) {
              Tell(place, std::string(entry.Text("id")));
            },
            [this](const LinePlace& place, std::string_view line) {
              Tell(place, "damaged: " + std::string(line));
            },
            [this](const LinePlace& place) { Tell(place, "overlong"); },
            [this](const Input& input) { progress_.push_back(input.Position()); },
            [this](const InputError& error) {
              told_.push_back(std::string(error.what()).substr(directory_.Path().size() + 1));
            }};
  }

  void Tell(const LinePlace& place, const std::string& what) {
    const std::string name = place.file.substr(directory_.Path().size() + 1);
    told_.push_back(name + ':' + std::to_string(place.number) + ' ' + what);
    fileNumbers_.push_back(place.fileNumber);
  }

  const TemporaryDirectory directory_;
  LogReader reader_{Hooks()};
  std::vector<std::string> told_;
  std::vector<std::size_t> fileNumbers_;
  std::vector<std::uint64_t> progress_;
};

TEST_F(LogReaderTest, EntriesComeWithTheirPlaces) {
  const std::string log = Write("log", "{\"id\":\"a\"}\n{\"id\":\"b\"}\n");
  EXPECT_THAT(Read({log}), ElementsAre("log:1 a", "log:2 b"));
  EXPECT_EQ(reader_.Counts(), (LineRecovery::Counts{2, 0, 0}));
}

TEST_F(LogReaderTest, LinesMayEndAsInOtherSystemsAndTheLastNotAtAll) {
  const std::string log = Write("log", "{\"id\":\"a\"}\r\n\r\n{\"id\":\"b\"}");
  EXPECT_THAT(Read({log}), ElementsAre("log:1 a", "log:3 b"));
}

TEST_F(LogReaderTest, BlankLinesCountAsLinesOnly) {
  EXPECT_THAT(Read({Write("log", "\n \n{\"id\":\"a\"}\n\n")}), ElementsAre("log:3 a"));
  EXPECT_EQ(reader_.Counts(), (LineRecovery::Counts{1, 0, 0}));
}

TEST_F(LogReaderTest, FilesAreReadInTheirOrder) {
  const std::string one = Write("one", "{\"id\":\"a\"}\n{\"id\":\"b\"}\n");
  const std::string two = Write("two", "{\"id\":\"c\"}\n");
  EXPECT_THAT(Read({one, two, one}),
              ElementsAre("one:1 a", "one:2 b", "two:1 c", "one:1 a", "one:2 b"));
  EXPECT_THAT(fileNumbers_, ElementsAre(0, 0, 1, 2, 2));
}

TEST_F(LogReaderTest, LineDoesNotGoOnInTheNextFile) {
  const std::string one = Write("one", "{\"id\":");
  const std::string two = Write("two", "\"a\"}\n");
  EXPECT_THAT(Read({one, two}), ElementsAre("one:1 damaged: {\"id\":", "two:1 damaged: \"a\"}"));
}

TEST_F(LogReaderTest, PrefixIsPassedOver) {
  EXPECT_THAT(Read({Write("log", "12:00 host {\"id\":\"a\"}\n")}), ElementsAre("log:1 a"));
  EXPECT_EQ(reader_.Counts(), (LineRecovery::Counts{1, 0, 0}));
}

TEST_F(LogReaderTest, FragmentsAreTold) {
  EXPECT_THAT(Read({Write("log", "{\"id\":\"a\n{\"id\":\"b\"}\n")}),
              ElementsAre("log:1 damaged: {\"id\":\"a", "log:2 b"));
  EXPECT_EQ(reader_.Counts(), (LineRecovery::Counts{1, 0, 1}));
}

TEST_F(LogReaderTest, GluedRecordsComeBeforeTheirLineIsTold) {
  EXPECT_THAT(Read({Write("log", "{\"id\":\"a\"}{\"id\":\"b\"}\n{\"id\":\"x{\"id\":\"c\"}\n")}),
              ElementsAre("log:1 a", "log:1 b", "log:1 damaged: {\"id\":\"a\"}{\"id\":\"b\"}",
                          "log:2 c", "log:2 damaged: {\"id\":\"x{\"id\":\"c\"}"));
  EXPECT_EQ(reader_.Counts(), (LineRecovery::Counts{0, 3, 1}));
}

TEST_F(LogReaderTest, OverlongLinesAreToldAtTheirPlaces) {
  const std::string longest = "{\"id\":\"a\"}" + std::string(LineCutter::kLongestLine - 10, ' ');
  const std::string log =
      Write("log", longest + '\n' + longest + " \n{\"id\":\"b\"}\n" + longest + ' ');
  EXPECT_THAT(Read({log}), ElementsAre("log:1 a", "log:2 overlong", "log:3 b", "log:4 overlong"));
  EXPECT_EQ(reader_.Overlong(), 2U);
}

TEST_F(LogReaderTest, OverlongLinesMayFollowEachOther) {
  const std::string overlong(LineCutter::kLongestLine + 1, 'x');
  const std::string log = Write("log", overlong + '\n' + overlong + "\n\n{\"id\":\"a\"}\n");
  EXPECT_THAT(Read({log}), ElementsAre("log:1 overlong", "log:2 overlong", "log:4 a"));
}

TEST_F(LogReaderTest, LinesLongerThanAPieceAreWhole) {
  const std::string blanks(1000000, ' ');
  const std::string log = Write("log", "{\"id\":" + blanks + "\"a\"}\n{\"id\":\"b\"}\n");
  EXPECT_THAT(Read({log}), ElementsAre("log:1 a", "log:2 b"));
}

TEST_F(LogReaderTest, RubbishIsTold) {
  const std::string rubbish("\0\xFF\x80{\0}", 6);
  EXPECT_THAT(Read({Write("log", rubbish + "\n{\"id\":\"a\"}\n")}),
              ElementsAre("log:1 damaged: " + rubbish, "log:2 a"));
}

TEST_F(LogReaderTest, UnreadableFilesAreToldAndTheOthersRead) {
  const std::string log = Write("log", "{\"id\":\"a\"}\n");
  EXPECT_THAT(Read({directory_ / "missing", log, directory_ / "missing2"}),
              ElementsAre("missing: No such file or directory", "log:1 a",
                          "missing2: No such file or directory"));
}

TEST_F(LogReaderTest, LinesBeforeAnEarlyEndAreRead) {
  const std::string log = directory_ / "log";
  GzipFile::Append(log, "{\"id\":\"a\"}\n");
  GzipFile::Append(log, "{\"id\":\"b\"}\n");
  const std::string whole = FileContent::Read(log);
  FileContent::Write(log, whole.substr(0, whole.size() - 1));
  EXPECT_THAT(Read({log}),
              ElementsAre("log:1 a", "log:2 b", "log: the compressed data ends too early"));
}

TEST_F(LogReaderTest, ProgressIsTold) {
  const std::string log = Write("log", std::string(1000000, '\n'));
  Read({log});
  ASSERT_FALSE(progress_.empty());
  EXPECT_TRUE(std::is_sorted(progress_.begin(), progress_.end()));
  EXPECT_EQ(progress_.back(), 1000000U);
}

TEST_F(LogReaderTest, HooksMayBeLeftOut) {
  std::vector<std::string> ids;
  LogReader reader(
      {[&ids](const LinePlace&, const LogEntry& entry) { ids.emplace_back(entry.Text("id")); },
       nullptr, nullptr, nullptr, nullptr});
  const std::string overlong(LineCutter::kLongestLine + 1, 'x');
  reader.Read({Write("log", "x\n" + overlong + "\n{\"id\":\"a\"}\n")});
  EXPECT_THAT(ids, ElementsAre("a"));
}

}  // namespace
}  // namespace vmetrics
