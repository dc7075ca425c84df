// What a component sets on the platform: kept for the test, and done to nothing.

#include <cerrno>
#include <climits>
#include <mutex>

#include "ResetSettings.h"
#include "VMetricsTestKit.h"
#include "VPlatformConfig.h"

namespace TestKit {
namespace {

struct SettingsState {
  std::mutex mutex;
  Settings settings;
  int refusal = 0;  ///< What errno says of a refused name; 0: none is refused.
};

/// Never destroyed, as a component may set something while the program exits.
SettingsState& TheSettings() {
  static SettingsState& state = *new SettingsState;
  return state;
}

/// Keeps a value, unless names are refused.
bool Name(std::string Settings::*setting, const std::string& name) {
  SettingsState& state = TheSettings();
  const std::lock_guard<std::mutex> lock(state.mutex);
  const int refusal = name.size() < PATH_MAX ? state.refusal : ENAMETOOLONG;
  if (refusal != 0) {
    errno = refusal;
    return false;
  }
  state.settings.*setting = name;
  return true;
}

template <typename Value>
void Set(Value Settings::*setting, Value value) {
  SettingsState& state = TheSettings();
  const std::lock_guard<std::mutex> lock(state.mutex);
  state.settings.*setting = value;
}

}  // namespace

Settings PlatformSettings() {
  SettingsState& state = TheSettings();
  const std::lock_guard<std::mutex> lock(state.mutex);
  return state.settings;
}

void RefuseNames(int error) {
  SettingsState& state = TheSettings();
  const std::lock_guard<std::mutex> lock(state.mutex);
  state.refusal = error;
}

void ResetSettings() {
  SettingsState& state = TheSettings();
  const std::lock_guard<std::mutex> lock(state.mutex);
  state.settings = Settings();
  state.refusal = 0;
}

}  // namespace TestKit

bool VPlatformConfig::SetMetricsFile(const std::string& path) {
  return TestKit::Name(&TestKit::Settings::metricsFile, path);
}

bool VPlatformConfig::SetDiagnosticsFile(const std::string& path) {
  return TestKit::Name(&TestKit::Settings::diagnosticsFile, path);
}

void VPlatformConfig::SetDiagnosticsLevel(int level) {
  TestKit::Set(&TestKit::Settings::diagnosticsLevel, level);
}

bool VPlatformConfig::SetLockFileDirectory(const std::string& directory) {
  return TestKit::Name(&TestKit::Settings::lockFileDirectory, directory);
}

void VPlatformConfig::SetLockFileMode(unsigned int mode) {
  TestKit::Set(&TestKit::Settings::lockFileMode, mode);
}
