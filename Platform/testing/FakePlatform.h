/// The platform as a test wants it: what is logged is kept, the clock reads what the test scripted,
/// files are in memory, and anything can be made to fail.
///
/// All state belongs to the process; Reset, at the beginning of each test, makes it new. Any thread
/// may use the platform; what the functions here return by reference is for a test that waits for
/// its threads before it looks.
#ifndef FAKEPLATFORM_H_
#define FAKEPLATFORM_H_

#include <map>
#include <string>
#include <vector>

namespace FakePlatform {

/// One call of VLogger::Log, whatever its level.
struct LogLine {
  std::string file;
  int line;
  std::string function;
  std::string text1;
  std::string text2;
  int level;
  std::string format;
  std::string message;  ///< The format with its arguments filled in.
};

/// One call of VLogger::Metrics.
struct MetricsLine {
  std::string format;
  std::string text;
};

/// Everything as at the start: nothing recorded, no files, nothing fails, the tick kFirstTick.
void Reset();

/// What the clock reads until a test scripts it.
constexpr unsigned long kFirstTick = 1700000000000;

// What was recorded since Reset, oldest first.
const std::vector<LogLine>& LogLines();
const std::vector<MetricsLine>& MetricsLines();
/// What was done to files: "lock shared", "lock exclusive" (also when refused), "read 128",
/// "write 36", "unlock", each followed by the file's name.
const std::vector<std::string>& FileOperations();
int TicksRead();

/// The clock reads these ticks one after another, the last one from then on.
void ScriptTicks(std::vector<unsigned long> ticks);

/// The files by name. A test may change them.
std::map<std::string, std::string>& Files();

/// Locks number `first` to `last` from now on (1 is the next one) are refused.
void RefuseLocks(int first, int last);
void RefuseAllLocks();

/// Writes come short: no more than `bytes` are written; with -1 they fail.
void LimitWrites(int bytes);

/// The `number`th memcpy_s from now on (1 is the next one) is refused; the others are real.
void FailCopy(int number);
/// The same for memset_s.
void FailClear(int number);

}  // namespace FakePlatform

#endif  // FAKEPLATFORM_H_
