/// The file through which processes hand the span that ended last to each other.
///
/// It holds the 36 characters of one identifier and nothing else. The library never deletes it.
#ifndef VMETRICS_DOTRECORD_SPANFILE_H_
#define VMETRICS_DOTRECORD_SPANFILE_H_

#include <string>

#include "VFileLock.h"

namespace vmetrics {

/// A relative name without a directory: where it lands is the platform's business.
constexpr char kSpanFileName[] = "spanId";

/// Stands for the parent span where the file could not be locked, and is what callers pass to have
/// it looked up in the file.
constexpr char kParentSpanIdPlaceholder[] = "ParentSpanId";

/// The text in the span file up to its first NUL, at most 128 characters, and empty if it cannot be
/// read. A lock on `file` must be held.
std::string ReadSpanFile(VFileLock& file);

/// The span that ended last, read under the exclusive lock as the end of a step asks for it; the
/// placeholder if the lock is refused.
std::string TakeParentSpanId();

/// Puts `spanId` into the file. Without a word if the lock is refused, with a line in the log if
/// the write comes short.
void PublishSpanId(const std::string& spanId);

}  // namespace vmetrics

#endif  // VMETRICS_DOTRECORD_SPANFILE_H_
