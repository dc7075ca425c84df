#include "DotRecord/SpanFile.h"

#include <cstring>

#include "BoundsChecked.h"
#include "Common/Log.h"
#include "VMetrics.h"

namespace vmetrics {

std::string ReadSpanFile(VFileLock& file) {
  char text[128];
  if (memset_s(text, sizeof text, 0, sizeof text) != 0) {
    return {};
  }
  file.Read(text, sizeof text);
  return std::string(text, strnlen(text, sizeof text));
}

std::string TakeParentSpanId() {
  VFileLock file(kSpanFileName);
  VFileLockGuard guard(file);
  return guard.LockExclusive() ? ReadSpanFile(file) : kParentSpanIdPlaceholder;
}

void PublishSpanId(const std::string& spanId) {
  VFileLock file(kSpanFileName);
  VFileLockGuard guard(file);
  if (!guard.LockExclusive()) {
    return;
  }
  const int size = static_cast<int>(spanId.size());
  const int count = file.Write(spanId.data(), size);
  if (count != size) {
    VMETRICS_LOG_AS(kDotRecordSource, "InsertRecord", kLogError,
                    "write failed count = %d, spanId.size = %d", count, size);
  }
}

}  // namespace vmetrics

std::string VMetrics::GetCurrentParentSpanId() {
  using namespace vmetrics;
  VFileLock file(kSpanFileName);
  VFileLockGuard guard(file);
  if (!guard.LockShared()) {
    return kParentSpanIdPlaceholder;
  }
  std::string parentSpanId = ReadSpanFile(file);
  VMETRICS_LOG(kDotRecordSource, kLogInformation, "parentSpanId = %s", parentSpanId.c_str());
  return parentSpanId;
}
