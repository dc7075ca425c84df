// Something else than a file where the span file or a metrics file is expected.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "DescriptorTable.h"
#include "Elapsed.h"
#include "FileContent.h"
#include "LinesOf.h"
#include "NonRegularFiles.h"
#include "TemporaryDirectory.h"
#include "TracedStep.h"
#include "VLogger.h"
#include "VMetrics.h"
#include "VPlatformConfig.h"

namespace {

constexpr long kPatienceMilliseconds = 300;

/// One kind of thing, at a path of the test's choice.
class HostilePathsTest : public testing::TestWithParam<const char*> {
 protected:
  HostilePathsTest() { EXPECT_TRUE(VPlatformConfig::SetMetricsFile(metrics_)); }

  /// Puts the thing at `path`; false where this user may not make one.
  bool PutAt(const std::string& path) const {
    if (GetParam() == std::string("device")) {
      return mknod(path.c_str(), S_IFCHR | 0600, makedev(1, 3)) == 0;  // As /dev/null.
    }
    for (const std::string& name : files_.Names()) {
      if (std::filesystem::path(name).filename() == GetParam()) {
        std::filesystem::rename(name, path);
        return true;
      }
    }
    return false;
  }

  /// What lies in the directory, and of what type.
  std::set<std::string> Listing() const {
    std::set<std::string> all;
    for (const auto& entry : std::filesystem::directory_iterator(directory_.Path())) {
      all.insert(entry.path().filename().string() + " " +
                 std::to_string(static_cast<int>(entry.symlink_status().type())));
    }
    return all;
  }

  std::string LastLine() const { return LastLineOf(FileContent::Read(metrics_)); }

  /// Makes `call` some times: it is quick, leaves no descriptor, and nothing is touched by it.
  template <typename Call>
  void ExpectHarmless(Call call) const {
    const std::set<std::string> listing = Listing();
    const long descriptors = DescriptorTable::Count();
    EXPECT_LT(MedianMilliseconds(call), kPatienceMilliseconds);
    EXPECT_EQ(DescriptorTable::Count(), descriptors);
    EXPECT_EQ(Listing(), listing);
    EXPECT_TRUE(files_.TargetsUntouched());
  }

  const TemporaryDirectory directory_;
  const NonRegularFiles files_;
  const std::string metrics_ = directory_ / "metrics";
};

std::string NameOf(const testing::TestParamInfo<const char*>& kind) { return kind.param; }

INSTANTIATE_TEST_SUITE_P(Kinds, HostilePathsTest,
                         testing::Values("directory", "fifo", "symlink", "dangling", "socket",
                                         "device"),
                         NameOf);

TEST_P(HostilePathsTest, SpanFileIsRefused) {
  EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(directory_.Path()));
  if (!PutAt(directory_ / "spanId")) {
    GTEST_SKIP() << "this user may not make a device";
  }
  ExpectHarmless([] { EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "ParentSpanId"); });
  ExpectHarmless([&] {
    EXPECT_EQ(TraceStep(), 0);
    EXPECT_NE(LastLine().find("\"parentSpanId\":\"ParentSpanId\""), std::string::npos)
        << LastLine();
  });
}

TEST_P(HostilePathsTest, MetricsFileIsRefused) {
  const std::string path = directory_ / "hostile";
  if (!PutAt(path)) {
    GTEST_SKIP() << "this user may not make a device";
  }
  ExpectHarmless([&] {
    EXPECT_FALSE(VPlatformConfig::SetMetricsFile(path));
    VLogger::GetInstance().Metrics("%s", "text");
  });
  EXPECT_EQ(LinesOf(FileContent::Read(metrics_)), std::vector<std::string>(kTimedCalls, "text"));
}

/// What is named as the directory of the files, and is none.
class HostileDirectoryTest : public HostilePathsTest {};
INSTANTIATE_TEST_SUITE_P(Kinds, HostileDirectoryTest,
                         testing::Values("fifo", "symlink", "dangling", "socket", "device"),
                         NameOf);

TEST_P(HostileDirectoryTest, IsRefused) {
  const std::string path = directory_ / "hostile";
  if (!PutAt(path)) {
    GTEST_SKIP() << "this user may not make a device";
  }
  EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(path));
  ExpectHarmless([&] {
    EXPECT_EQ(VMetrics::GetCurrentParentSpanId(), "ParentSpanId");
    EXPECT_FALSE(VPlatformConfig::SetMetricsFile(path + "/metrics"));
  });
}

}  // namespace
