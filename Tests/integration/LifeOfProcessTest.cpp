// Calls at the ends of a process's life, and in the child of a process with threads.

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "FileContent.h"
#include "JsonLines.h"
#include "ProbeProcess.h"
#include "TemporaryDirectory.h"

#if defined(__has_feature)
#define VMETRICS_TEST_HAS_FEATURE(feature) __has_feature(feature)
#else
#define VMETRICS_TEST_HAS_FEATURE(feature) 0
#endif

namespace {

/// The allocators of the address and the thread sanitizer keep their locks across a fork: the child
/// of a process with threads hangs in them now and then, also in a program that only allocates.
#if defined(__SANITIZE_ADDRESS__) || VMETRICS_TEST_HAS_FEATURE(address_sanitizer) || \
    defined(__SANITIZE_THREAD__) || VMETRICS_TEST_HAS_FEATURE(thread_sanitizer)
constexpr bool kAllocatorSurvivesFork = false;
#else
constexpr bool kAllocatorSurvivesFork = true;
#endif

using testing::Each;
using testing::IsEmpty;
using testing::SizeIs;

/// The lines that calling everything once leaves on the metrics channel: seven reports and a step.
constexpr int kLinesOfEverything = 8;
constexpr int kTextsOfEverything = 6;

int Occurrences(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

class LifeOfProcessTest : public testing::Test {
 protected:
  void Run(std::vector<std::string> commands) {
    commands.insert(commands.begin(), {"metrics", directory_ / "metrics", "diagnostics", "3"});
    result_ = RunProbe(directory_, commands);
    ASSERT_TRUE(Succeeded(result_));
  }

  /// Everything was called `times` times, and all of it worked.
  void ExpectEverything(int times) {
    EXPECT_THAT(result_.Values("rendered"), SizeIs(kTextsOfEverything * times));
    EXPECT_THAT(result_.Values("failed"), IsEmpty());
    EXPECT_THAT(result_.Values("identifier"), SizeIs(times));
    EXPECT_THAT(ParseJsonLines(FileContent::Read(directory_ / "metrics")),
                SizeIs(kLinesOfEverything * times));
    EXPECT_EQ(result_.Values("parent").back(), FileContent::Read(directory_ / "spanId"));
  }

  int Cleared() const { return Occurrences(result_.diagnostics, "ResourceClear: ResourceClear"); }

  /// Of the metrics file, which busy threads make a long one.
  std::string StepLines() const {
    std::ifstream file(directory_ / "metrics");
    std::string lines;
    for (std::string line; std::getline(file, line);) {
      lines += line.find("\"spanId\":") != std::string::npos ? line + "\n" : "";
    }
    return lines;
  }

  TemporaryDirectory directory_;
  ProbeResult result_;
};

TEST_F(LifeOfProcessTest, EverythingWorksInMain) {
  Run({"everything"});
  ExpectEverything(1);
  EXPECT_EQ(Cleared(), 1);
}

TEST_F(LifeOfProcessTest, EverythingWorksInAnExitHandlerOfAProcessThatTraced) {
  Run({"everything", "everything-at-exit"});
  ExpectEverything(2);
  EXPECT_EQ(Cleared(), 1);
  EXPECT_EQ(Occurrences(result_.diagnostics, "has not startEvent"), 0);
}

// The table comes into being while the process exits, and goes again.
TEST_F(LifeOfProcessTest, FirstEventMayComeInAnExitHandler) {
  Run({"everything-at-exit"});
  ExpectEverything(1);
  EXPECT_EQ(Cleared(), 1);
}

// The handler runs after the table was cleared, which was made when it had been registered already.
TEST_F(LifeOfProcessTest, ExitHandlerOlderThanTheFirstEventWorksToo) {
  Run({"everything-at-exit", "everything"});
  ExpectEverything(2);
}

TEST_F(LifeOfProcessTest, EverythingWorksInADestructorOfAProcessThatTraced) {
  Run({"everything", "everything-in-destructor"});
  ExpectEverything(2);
  EXPECT_EQ(Cleared(), 1);
}

TEST_F(LifeOfProcessTest, FirstEventMayComeInADestructor) {
  Run({"everything-in-destructor"});
  ExpectEverything(1);
  EXPECT_EQ(Cleared(), 1);
}

// Asked, in an exit handler and in a destructor: both were registered after the library was loaded,
// and before or after the table of steps was made.
TEST_F(LifeOfProcessTest, EverythingWorksInALibraryThatWasLoadedLater) {
  Run({"load-library"});
  ExpectEverything(3);
}

TEST_F(LifeOfProcessTest, EverythingWorksInALibraryThatWasLoadedAfterTheFirstEvent) {
  Run({"everything", "load-library", "everything-at-exit"});
  ExpectEverything(5);
  EXPECT_EQ(Cleared(), 1);
}

TEST_F(LifeOfProcessTest, EverythingWorksWhileALibraryIsUnloaded) {
  Run({"load-library", "unload-library", "everything"});
  ExpectEverything(4);
  EXPECT_EQ(Cleared(), 1);
}

TEST_F(LifeOfProcessTest, EverythingWorksInTheChildrenOfAProcessWithThreads) {
  if (!kAllocatorSurvivesFork) {
    GTEST_SKIP() << "the sanitizer's allocator may hang in a child";
  }
  constexpr int kChildren = 20;
  Run({"forks", std::to_string(kChildren)});
  EXPECT_EQ(result_.Values("children"), std::vector<std::string>{std::to_string(kChildren)});
  EXPECT_THAT(result_.Values("failed"), IsEmpty());
  EXPECT_THAT(result_.Values("rendered"), SizeIs(kTextsOfEverything * kChildren));
}

// What a child inherits must not make it repeat the identifiers of its sisters. Two repetitions are
// let through, for a processor whose random source repeats itself.
TEST_F(LifeOfProcessTest, ForkedChildrenMakeIdentifiersOfTheirOwn) {
  if (!kAllocatorSurvivesFork) {
    GTEST_SKIP() << "the sanitizer's allocator may hang in a child";
  }
  constexpr int kChildren = 20;
  Run({"forks", std::to_string(kChildren)});
  const std::vector<std::string> identifiers = result_.Values("identifier");
  EXPECT_THAT(identifiers, SizeIs(kChildren));
  const std::set<std::string> distinct(identifiers.begin(), identifiers.end());
  EXPECT_GE(distinct.size(), std::size_t{kChildren - 2});
}

// Each traces while the other does, with the same table of steps at the beginning.
TEST_F(LifeOfProcessTest, ChildAndParentTraceStepsOfTheirOwn) {
  if (!kAllocatorSurvivesFork) {
    GTEST_SKIP() << "the sanitizer's allocator may hang in a child";
  }
  constexpr int kChildren = 20;
  Run({"forks", std::to_string(kChildren)});
  EXPECT_THAT(result_.Values("failed"), IsEmpty());
  std::map<std::string, int> steps;
  std::set<std::string> distinct;
  for (const auto& record : ParseJsonLines(StepLines())) {
    ++steps[TextOf(record, "transactionId")];
    distinct.insert(TextOf(record, "spanId"));
  }
  EXPECT_EQ(steps, (std::map<std::string, int>{{"child", kChildren}, {"parent", kChildren}}));
  EXPECT_GE(distinct.size(), std::size_t{2 * kChildren - 2});
}

/// The lines in which a probe says its descriptors.
std::vector<std::string> DescriptorLines(const ProbeResult& result) {
  std::vector<std::string> lines = LinesOf(result.diagnostics);
  lines.erase(
      std::remove_if(lines.begin(), lines.end(),
                     [](const std::string& line) { return line.rfind("descriptors", 0) != 0; }),
      lines.end());
  return lines;
}

// While the threads have the metrics file open, the span file and, for moments, standard output.
TEST_F(LifeOfProcessTest, ProgramsThatItStartsInheritNoDescriptor) {
  constexpr int kPrograms = 50;
  const std::vector<std::string> execs{"execs", std::to_string(kPrograms)};
  std::vector<std::string> commands{"descriptors", "metrics", directory_ / "metrics"};
  commands.insert(commands.end(), execs.begin(), execs.end());
  const ProbeResult toFile = RunProbe(directory_, commands);
  EXPECT_TRUE(Succeeded(toFile));
  EXPECT_THAT(toFile.Values("failed"), IsEmpty());
  const std::vector<std::string> descriptors = DescriptorLines(toFile);
  EXPECT_THAT(descriptors, SizeIs(1 + kPrograms));
  EXPECT_THAT(descriptors, Each(descriptors.at(0)));
}

TEST_F(LifeOfProcessTest, ProgramsThatItStartsInheritNoDescriptorOfAStream) {
  constexpr int kPrograms = 50;
  const int device = open("/dev/null", O_WRONLY | O_CLOEXEC);
  const ProbeResult toStream =
      ProbeProcess(directory_, {"descriptors", "execs", std::to_string(kPrograms)}, device).Wait();
  close(device);
  EXPECT_TRUE(Succeeded(toStream));
  const std::vector<std::string> descriptors = DescriptorLines(toStream);
  EXPECT_THAT(descriptors, SizeIs(1 + kPrograms));
  EXPECT_THAT(descriptors, Each(descriptors.at(0)));
}

}  // namespace
