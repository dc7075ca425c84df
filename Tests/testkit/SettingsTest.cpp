#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <filesystem>
#include <string>

#include "TemporaryDirectory.h"
#include "TestKitTest.h"
#include "VPlatformConfig.h"

namespace {

class SettingsTest : public TestKitTest {};

TEST_F(SettingsTest, NamedFilesAreKeptAndNotMade) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(VPlatformConfig::SetMetricsFile(directory / "metrics.log"));
  EXPECT_TRUE(VPlatformConfig::SetDiagnosticsFile(directory / "nowhere/diagnostics.log"));
  EXPECT_TRUE(VPlatformConfig::SetLockFileDirectory(directory.Path()));
  Trace("place");
  EXPECT_EQ(TestKit::PlatformSettings().metricsFile, directory / "metrics.log");
  EXPECT_EQ(TestKit::PlatformSettings().diagnosticsFile, directory / "nowhere/diagnostics.log");
  EXPECT_EQ(TestKit::PlatformSettings().lockFileDirectory, directory.Path());
  EXPECT_EQ(TestKit::MetricsLines().size(), 1U);
  EXPECT_TRUE(std::filesystem::is_empty(directory.Path()));
}

TEST_F(SettingsTest, LevelAndModeAreKept) {
  VPlatformConfig::SetDiagnosticsLevel(3);
  VPlatformConfig::SetLockFileMode(0660);
  EXPECT_EQ(TestKit::PlatformSettings().diagnosticsLevel, 3);
  EXPECT_EQ(TestKit::PlatformSettings().lockFileMode, 0660U);
}

TEST_F(SettingsTest, LevelDoesNotHideDiagnosticsFromTheTest) {
  VPlatformConfig::SetDiagnosticsLevel(0);
  VMetrics::InsertRecord(7, "t", "e", "s", "", 0);
  EXPECT_EQ(TestKit::LogLines().size(), 1U);
}

TEST_F(SettingsTest, NamesAreRefused) {
  TestKit::RefuseNames(ENOENT);
  EXPECT_FALSE(VPlatformConfig::SetMetricsFile("/var/log/product/metrics.log"));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(VPlatformConfig::SetDiagnosticsFile("diagnostics.log"));
  EXPECT_FALSE(VPlatformConfig::SetLockFileDirectory("/run/product"));
  EXPECT_EQ(TestKit::PlatformSettings().metricsFile, "");
  EXPECT_EQ(TestKit::PlatformSettings().diagnosticsFile, "");
  EXPECT_EQ(TestKit::PlatformSettings().lockFileDirectory, "");
}

TEST_F(SettingsTest, NamesTooLongForAPathAreRefused) {
  EXPECT_FALSE(VPlatformConfig::SetLockFileDirectory(std::string(PATH_MAX, 'd')));
  EXPECT_EQ(errno, ENAMETOOLONG);
}

TEST_F(SettingsTest, ResetTakesBackWhatWasSet) {
  VPlatformConfig::SetMetricsFile("metrics.log");
  VPlatformConfig::SetDiagnosticsLevel(3);
  TestKit::RefuseNames(ENOENT);
  TestKit::Reset();
  EXPECT_EQ(TestKit::PlatformSettings().metricsFile, "");
  EXPECT_EQ(TestKit::PlatformSettings().diagnosticsLevel, 2);
  EXPECT_EQ(TestKit::PlatformSettings().lockFileMode, 0600U);
  EXPECT_TRUE(VPlatformConfig::SetMetricsFile("metrics.log"));
}

}  // namespace
