#include "VLogger.h"

#include <cstdarg>
#include <cstdio>

#include "FakePlatformState.h"

namespace {

std::string Formatted(const char* format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));
std::string Formatted(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  std::string text(static_cast<std::size_t>(std::vsnprintf(nullptr, 0, format, arguments)), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);
  return text;
}

}  // namespace

VLogger& VLogger::GetInstance() {
  static VLogger instance;
  return instance;
}

void VLogger::Log(const char* file, int line, const char* function, const char* text1,
                  const char* text2, int level, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  FakePlatform::LockedState()->logLines.push_back(
      {file, line, function, text1, text2, level, format, Formatted(format, arguments)});
  va_end(arguments);
}

void VLogger::Metrics(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  FakePlatform::LockedState()->metricsLines.push_back({format, Formatted(format, arguments)});
  va_end(arguments);
}
