/// What tests of step tracing hand on, and what they say about log lines.
#ifndef SPANMATCHERS_H_
#define SPANMATCHERS_H_

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "FakePlatform.h"
#include "SpanIdentifierForm.h"
#include "VFileLock.h"

/// Two identifiers for tests that only hand them on.
constexpr char kSpanA[] = "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4";
constexpr char kSpanB[] = "d091bb5c-22ae-e7e1-d5c3-1f792082352c";

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
