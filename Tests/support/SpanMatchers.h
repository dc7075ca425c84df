/// What tests of step tracing say about identifiers and log lines.
#ifndef SPANMATCHERS_H_
#define SPANMATCHERS_H_

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "FakePlatform.h"
#include "VFileLock.h"

/// Two identifiers for tests that only hand them on.
constexpr char kSpanA[] = "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4";
constexpr char kSpanB[] = "d091bb5c-22ae-e7e1-d5c3-1f792082352c";

/// Whether `text` is lower-case hexadecimal digits in groups of 8-4-4-4-12.
inline bool IsSpanIdentifier(std::string_view text) {
  constexpr std::string_view kForm = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
  bool matches = text.size() == kForm.size();
  for (std::size_t i = 0; matches && i < text.size(); ++i) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    matches = kForm[i] == '-' ? text[i] == '-' : kDigits.find(text[i]) != std::string_view::npos;
  }
  return matches;
}

/// A log line of the tracing unit, all of it but the number of its source line.
MATCHER_P4(IsTracingLine, level, function, format, message, "") {
  *result_listener << "{" << arg.file << ":" << arg.line << ", " << arg.function << ", \""
                   << arg.text1 << "\", \"" << arg.text2 << "\", level " << arg.level << ", \""
                   << arg.format << "\", \"" << arg.message << "\"}";
  return arg.file == "Framework/VMetrics/src/DotRecord" && arg.line > 0 &&
         arg.function == function && arg.text1 == " " && arg.text2.empty() && arg.level == level &&
         arg.format == format && arg.message == message;
}

/// An error of InsertRecord whose format stands for itself.
inline auto IsInsertError(const char* text) { return IsTracingLine(1, "InsertRecord", text, text); }
inline auto IsInsertError(const char* format, const std::string& message) {
  return IsTracingLine(1, "InsertRecord", format, message);
}

inline auto IsResourceClear() {
  return IsTracingLine(3, "ResourceClear", "ResourceClear", "ResourceClear");
}

/// Lets the faked platform note some more file operations without allocating: it notes the giving
/// back of a lock in a destructor, where running out of memory would end the process.
inline void RoomForFileOperations() {
  const std::vector<std::string>& operations = FakePlatform::FileOperations();
  while (operations.capacity() < operations.size() + 16) {
    VFileLock file("spanId");
    VFileLockGuard(file).LockShared();
  }
}

/// Whether a lock was taken and never given back. Refused locks count as taken.
inline bool HasOpenSession() {
  int open = 0;
  for (const std::string& operation : FakePlatform::FileOperations()) {
    open += operation.rfind("lock ", 0) == 0 ? 1 : 0;
    open -= operation.rfind("unlock ", 0) == 0 ? 1 : 0;
  }
  return open != 0;
}

#endif  // SPANMATCHERS_H_
