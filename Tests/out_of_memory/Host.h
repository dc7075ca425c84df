/// A host process, and what others can see of what the library does in it.
#ifndef HOST_H_
#define HOST_H_

#include <string>

#include "TemporaryDirectory.h"
#include "VMetrics.h"

/// What can be seen from outside at one moment.
struct View {
  std::string metrics;      ///< The metrics channel; for identifiers it holds placeholders.
  std::string diagnostics;  ///< "says ..." for each line of the diagnostics channel.
  std::string span;         ///< "no span file", "empty span file", "old span" or "new span".
  MetricsMap catalogue;
  MetricsStringMap events;
};

/// Both channels in files, the span file in a directory with a long name, and a clock that stands
/// still. What a host configures holds for the whole process.
class Host {
 public:
  Host();

  /// The catalogue as it was when the process began, with the metrics below; empty channels; a span
  /// file that holds kOldSpan.
  void Reset() const;

  /// No span file.
  void RemoveSpanFile() const;
  /// Nowhere to put one: no lock can be had.
  void RemoveSpanDirectory() const;

  bool HasSaidAnything() const;

  View Look() const;

 private:
  std::string SpanDirectory() const;
  std::string SpanFile() const;

  TemporaryDirectory directory_;
  const MetricsMap metrics_ = VMetrics::GetMetricsMap();
  const MetricsStringMap events_ = VMetrics::GetMetricsStringMap();
};

Host& TheHost();

/// What has changed from `before` to `now`, told in words. What the metrics channel and the
/// catalogue hold afterwards must be what stood there `before` or stands there `after` a call that
/// has memory to spare.
std::string Changes(const View& before, const View& now, const View& after);

constexpr char kOldSpan[] = "3f2a9c01-00b7-e4d2-5a10-0c33e8f1a2b4";

// Metrics of each type of value. Their names are too long for a string's own room, so that each of
// them asks for memory.
constexpr int kTextMetric = 770001;
constexpr int kIntMetric = 770002;
constexpr int kDoubleMetric = 770003;
constexpr int kEnumMetric = 770004;
constexpr int kJsonMetric = 770005;
constexpr char kTextEvent[] = "AN_EVENT_THAT_CARRIES_TEXT";
constexpr char kJsonEvent[] = "AN_EVENT_THAT_CARRIES_JSON";
constexpr char kName[] = "a name that is too long for a short string";

#endif  // HOST_H_
