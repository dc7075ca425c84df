#include "VLogger.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "DiagnosticLine.h"
#include "ErrnoKeeper.h"
#include "LineChannel.h"
#include "VDateTime.h"
#include "VPlatformConfig.h"

namespace {

constexpr int kError = 1;
constexpr int kWarning = 2;
constexpr char kSource[] = "Platform/src/VLogger";

// All of this is there before the first constructor of the process runs and after its last
// destructor has: the last diagnostic of a process comes while it exits.
LineChannel metricsChannel(STDOUT_FILENO);
LineChannel diagnosticsChannel(STDERR_FILENO);
std::atomic<int> diagnosticsLevel{kWarning};
std::atomic<unsigned long> lostMetricsLines{0};  ///< Since a line last went out.

/// Counts a line that did not go out. A loss is told once, and once more, with the count, when it
/// is over; never with the line itself, as metrics may be private.
void CountLoss(int error) {
  if (lostMetricsLines.fetch_add(1) == 0) {
    VLogger::GetInstance().Log(kSource, __LINE__, "Metrics", " ", "", kError,
                               "metrics channel: a line is lost, maybe more to come: %s",
                               strerrordesc_np(error));
  }
}

void TellLossIsOver() {
  const unsigned long lost = lostMetricsLines.exchange(0);
  if (lost != 0) {
    VLogger::GetInstance().Log(kSource, __LINE__, "Metrics", " ", "", kWarning,
                               "metrics channel: written to again, lines lost: %lu", lost);
  }
}

void WriteMetricsLine(const char* text, std::size_t length) {
  const int error = metricsChannel.WriteLine(text, length);
  if (error != 0) {
    CountLoss(error);
  } else if (lostMetricsLines.load(std::memory_order_relaxed) != 0) {
    TellLossIsOver();
  }
}

/// Formats a line and writes it.
void WriteFormattedLine(const char* format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));
void WriteFormattedLine(const char* format, std::va_list arguments) {
  char shortText[1024];
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(shortText, sizeof shortText, format, arguments);
  if (length >= static_cast<int>(sizeof shortText)) {
    std::string longText(static_cast<std::size_t>(length), '\0');
    std::vsnprintf(longText.data(), longText.size() + 1, format, again);
    WriteMetricsLine(longText.data(), longText.size());
  } else if (length >= 0) {
    WriteMetricsLine(shortText, static_cast<std::size_t>(length));
  } else {
    CountLoss(errno);  // An argument that cannot be converted.
  }
  va_end(again);
}

}  // namespace

VLogger& VLogger::GetInstance() {
  static VLogger instance;
  return instance;
}

void VLogger::Log(const char* file, int line, const char* function, const char* text1,
                  const char* text2, int level, const char* format, ...) {
  if (std::max(level, kError) > diagnosticsLevel.load(std::memory_order_relaxed)) {
    return;
  }
  const ErrnoKeeper keeper;
  DiagnosticLine text;
  text.AppendHead(VDateTime::GetCurrentTick(), level, function);
  text.AppendTag(text1);
  text.AppendTag(text2);
  std::va_list arguments;
  va_start(arguments, format);
  text.AppendMessage(format, arguments);
  va_end(arguments);
  text.AppendSource(file, line);
  diagnosticsChannel.WriteLine(text.Text().data(), text.Text().size());
}

void VLogger::Metrics(const char* format, ...) {
  const ErrnoKeeper keeper;
  std::va_list arguments;
  va_start(arguments, format);
  if (std::strcmp(format, "%s") == 0) {
    const char* const text = va_arg(arguments, const char*);
    const std::string_view line = text == nullptr ? "(null)" : text;
    WriteMetricsLine(line.data(), line.size());  // Ready as it is.
  } else {
    WriteFormattedLine(format, arguments);
  }
  va_end(arguments);
}

bool VPlatformConfig::SetMetricsFile(const std::string& path) {
  return metricsChannel.OpenFile(path);
}

bool VPlatformConfig::SetDiagnosticsFile(const std::string& path) {
  return diagnosticsChannel.OpenFile(path);
}

void VPlatformConfig::SetDiagnosticsLevel(int level) {
  diagnosticsLevel.store(level, std::memory_order_relaxed);
}
