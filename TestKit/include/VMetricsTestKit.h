/// The test kit: what a component reports through VMetrics, for the component's own tests to look
/// at.
///
/// A test program that links the kit (CMake: VMetrics::TestKit, pkg-config: vmetrics-testkit) and
/// calls a function of it replaces the embedded platform's logger, clock, locked files and settings
/// (VPlatformConfig.h). Lines are kept in memory instead of being written, the clock stands still
/// until the test moves it, the span file is no file, and locks, writes and settings fail when they
/// are told to. Everything else is the library as it is shipped. No test framework is needed, and
/// any will do: a check hands out a text that says what is wrong, empty if all is well.
///
/// Example:
///
///     TestKit::Reset();
///     OpenShop();                          // The component's own functions.
///     TestKit::ScriptTicks({1000, 1250});  // The first step starts at 1000 ms, ends at 1250 ms.
///     PlaceOrder("order-7", 3);
///     EXPECT_EQ(TestKit::ExpectStep("ORDER", "check stock").UsedTime(250).Failure(), "");
///     EXPECT_EQ(TestKit::ExpectMetric("order_placed").Arg("items", "3").Failure(), "");
///
/// Threads: every function may be called from any thread, also while others report. A test that
/// wants to see all of what a thread has reported waits for that thread first. Reset and SetTick,
/// AdvanceTick, ScriptTicks change what other threads see; and as Reset touches the catalogue, the
/// rule of VMetrics::RegisterMetricsDataType is its rule.
///
/// All results are copies that belong to the caller, all arguments are borrowed for the call. No
/// function writes anything; of exceptions only std::bad_alloc leaves one. All times are in
/// milliseconds.
///
/// The kit is a static library for tests: neither its interface nor its layouts are frozen. Take
/// header and library from the same version as VMetrics.h. C++11 or later.
#ifndef VMETRICSTESTKIT_H_
#define VMETRICSTESTKIT_H_

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace TestKit {

// The stage.

/// What the clock reads after Reset, in milliseconds since the Unix epoch.
const unsigned long kFirstTick = 1700000000000UL;

/// Makes everything as at the start of the program; to be called at the beginning of each test.
///
/// Nothing is recorded or set, the span file is gone, nothing fails, and the clock stands at
/// kFirstTick.
/// The catalogue becomes what it was at the first call of Reset: a metric type that was registered
/// before stays, one that a test has registered is gone. Steps that were started and not ended
/// cannot be taken back: give each test transaction IDs of its own. Where the library does not use
/// the kit, as the program is linked, each check says so from then on.
void Reset();

/// Lets the clock stand at `tick`.
void SetTick(unsigned long tick);

/// Lets the clock stand `milliseconds` later than what it would read next. What is left of
/// scripted ticks is dropped.
void AdvanceTick(unsigned long milliseconds);

/// Lets the clock read these ticks one after another, and the last one from then on. None stands
/// for kFirstTick alone.
///
/// The clock is read by each call of VMetrics::InsertRecord, once more when its step ends, and by
/// everything that renders a record with a time stamp; a component's own calls of
/// VDateTime::GetCurrentTick count, too.
void ScriptTicks(const std::vector<unsigned long>& ticks);

/// Makes the span file hold `identifier`, as if another process had ended a step.
void SetSpanFile(const std::string& identifier);

/// What the span file holds: the identifier of the step that ended last. Empty if there is none.
std::string SpanFile();

/// Refuses the locks number `first` to `last` from now on (1 is the next one), as if another
/// process held the span file for too long.
///
/// The end of a step takes one lock to read its parent, if that is to come from the span file, and
/// one to write itself.
void RefuseLocks(int first, int last);

/// Refuses all locks until Reset.
void RefuseAllLocks();

/// Lets no write to the span file write more than `bytes`, as if the disk were full; with -1 each
/// one fails. Until Reset.
void LimitWrites(int bytes);

/// Lets the platform refuse the names of files and directories that it is given, with `error` in
/// errno (ENOENT, say), as if the directory were missing: SetMetricsFile, SetDiagnosticsFile and
/// SetLockFileDirectory of VPlatformConfig return false. 0 stands for taking them again.
void RefuseNames(int error);

// What was recorded.

/// Members of a JSON object by name, each value as JSON text: 3, 41.50, true, "shop" with its
/// quotes, {"nested":1}. Of equal names the last one counts.
typedef std::map<std::string, std::string> Members;

/// One line of the diagnostics channel.
struct LogLine {
  int level = 0;         ///< 1 for an error, 2 for a warning, 3 for information.
  std::string message;   ///< What is told, its arguments filled in.
  std::string function;  ///< The function that tells it.
  std::string file;      ///< The unit that the function is in.
  int line = 0;          ///< The line in its source.
};

/// One metric that was reported: a line of the metrics channel that is not a step.
struct Metric {
  std::string line;         ///< The line, without its line break.
  std::string eventId;      ///< Empty where the line has none, or is no JSON object.
  std::string serviceName;  ///< Who reported it.
  Members members;          ///< All members of the line, "args" among them.
  Members args;             ///< The members of "args"; none where that is no object.
};

/// One step that has ended.
struct Step {
  bool found = false;         ///< Whether there is such a step. If not, all else is empty or 0.
  std::string line;           ///< The line, without its line break.
  std::string eventId;        ///< Empty where the line has none.
  std::string transactionId;  ///< The transaction that the step belongs to.
  std::string stepName;       ///< The step's name.
  std::string spanId;         ///< The step's own identifier, 36 characters.
  std::string parentSpanId;   ///< Its parent's identifier; empty where it has none.
  std::string parentStep;  ///< The name of the recorded step that its parent is; empty if none is.
  int errorCode = 0;       ///< What the step came to, 0 for success.
  bool isSuccess = false;  ///< Whether the error code is 0.
  unsigned long startTime = 0;  ///< The tick at its start.
  unsigned long endTime = 0;    ///< The tick at its end.
  unsigned long usedTime = 0;   ///< Milliseconds from start to end.
};

/// What was set by the functions of VPlatformConfig since Reset. Nothing else comes of it: no file
/// is opened, and what a level would hide from people is recorded all the same.
struct Settings {
  std::string metricsFile;           ///< As it was named; empty for standard output.
  std::string diagnosticsFile;       ///< As it was named; empty for standard error.
  int diagnosticsLevel = 2;          ///< Up to which level diagnostics would be let through.
  std::string lockFileDirectory;     ///< Empty for the working directory.
  unsigned int lockFileMode = 0600;  ///< The permissions of new files.
};

/// What the platform is set to.
Settings PlatformSettings();

/// Every line of the metrics channel since Reset, without line breaks, oldest first.
std::vector<std::string> MetricsLines();

/// Every line of the diagnostics channel since Reset, whatever its level, oldest first.
std::vector<LogLine> LogLines();

/// Every metric since Reset, oldest first.
std::vector<Metric> Metrics();

/// The same, of one event ID.
std::vector<Metric> Metrics(const std::string& eventId);

/// Every step that has ended since Reset, oldest first.
std::vector<Step> Steps();

/// The step `stepName` of the event `eventId`; of several the one that ended last. See Step::found.
///
///     std::string identifier = TestKit::FindStep("ORDER", "place").spanId;
Step FindStep(const std::string& eventId, const std::string& stepName);

// Checks.

/// What a test wants of a step; made by ExpectStep. Each function adds a condition. Once one has
/// failed, the others are not looked at. For one thread at a time.
class StepCheck {
 public:
  /// The error code is 0.
  StepCheck& Succeeded();
  /// The error code is `wanted`.
  StepCheck& ErrorCode(int wanted);
  /// The step took `wanted` milliseconds.
  StepCheck& UsedTime(unsigned long wanted);
  /// The step belongs to the transaction `wanted`.
  StepCheck& TransactionId(const std::string& wanted);
  /// The step's parent is the recorded step of this name; "" wants a step without a parent among
  /// what was recorded.
  StepCheck& ParentStep(const std::string& wanted);

  /// What is wrong, for people; empty if nothing is.
  ///
  ///     step "place" of event "ORDER": error code is 5, wanted 0
  std::string Failure() const { return failure_; }

 private:
  friend StepCheck ExpectStep(const std::string& eventId, const std::string& stepName);

  StepCheck& Compare(const char* what, const std::string& actual, const std::string& wanted);

  Step step_;
  std::string subject_;
  std::string failure_;
};

/// Wants the step `stepName` of the event `eventId` to have ended; conditions are for the one that
/// ended last.
///
///     TestKit::ExpectStep("ORDER", "place").UsedTime(250).ParentStep("log in").Failure()
StepCheck ExpectStep(const std::string& eventId, const std::string& stepName);

/// Wants no step `stepName` of the event `eventId` to have ended. Returns the line of the one that
/// ended last; empty if there is none.
std::string ExpectNoStep(const std::string& eventId, const std::string& stepName);

/// What a test wants of a metric; made by ExpectMetric. Otherwise as StepCheck.
class MetricCheck {
 public:
  /// The service `wanted` reported it.
  MetricCheck& ServiceName(const std::string& wanted);
  /// The member `name` of "args" is the JSON text `wanted`, letter for letter: 3, "shop" with its
  /// quotes.
  MetricCheck& Arg(const std::string& name, const std::string& wanted);
  /// Metrics of this event ID were reported `wanted` times since Reset; with 0, never.
  MetricCheck& Times(int wanted);

  /// What is wrong, for people; empty if nothing is.
  ///
  ///     metric "nox_user_connect": args member "items" is 3, wanted 4
  std::string Failure() const { return failure_; }

 private:
  friend MetricCheck ExpectMetric(const std::string& eventId);

  MetricCheck& Compare(const std::string& what, const std::string& actual,
                       const std::string& wanted);

  Metric metric_;
  std::size_t times_ = 0;
  std::string subject_;
  std::string failure_;
};

/// Wants a metric of the event ID to have been reported, or, with Times(0), not to have been;
/// conditions are for the one that was reported last.
///
///     TestKit::ExpectMetric("order_placed").ServiceName("shop").Arg("items", "3").Failure()
MetricCheck ExpectMetric(const std::string& eventId);

/// Wants no metrics line, step or other. Returns what was written instead; empty if nothing was.
std::string ExpectNoMetricsLines();

/// Wants a line of this level and this message, letter for letter, on the diagnostics channel.
/// Returns what was logged instead; empty if it was.
///
///     TestKit::ExpectLogLine(1, "transactionId is nullptr")
std::string ExpectLogLine(int level, const std::string& message);

/// Wants no line of this level or a graver one on the diagnostics channel: usually no warning and
/// no error. Returns those that were logged; empty if there are none.
std::string ExpectNoLogLines(int level = 2);

}  // namespace TestKit

#endif  // VMETRICSTESTKIT_H_
