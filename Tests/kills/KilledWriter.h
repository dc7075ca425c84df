/// A process that writes lines and ends steps until it is killed.
#ifndef KILLEDWRITER_H_
#define KILLEDWRITER_H_

#include <atomic>
#include <string>

namespace KilledWriter {

/// Whether the line `number` of each writer is a step record.
bool IsStep(int number);

/// The name of the step that makes the line `number` of `writer`.
std::string StepName(int writer, int number);

/// The line `number` of `writer` where it is none: of 200, 4,096, 9,000 or 60,000 bytes.
std::string Line(int writer, int number);

/// Writes the lines 0, 1, 2 and so on of `writer` to the file "metrics" in `directory`, with the
/// span file there too, and what there is to complain of in "diagnostics". Counts a line in
/// `acknowledged` once the call has returned.
[[noreturn]] void Run(const std::string& directory, int writer, std::atomic<int>& acknowledged);

}  // namespace KilledWriter

#endif  // KILLEDWRITER_H_
