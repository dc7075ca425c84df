/// One step event on its way through the library, and the record that the end of a step leaves.
#ifndef VMETRICS_DOTRECORD_STEPRECORD_H_
#define VMETRICS_DOTRECORD_STEPRECORD_H_

#include <string>

namespace vmetrics {

constexpr int kStepStarts = 0;
constexpr int kStepEnds = 1;

/// The arguments of one event; lives for the call that reports it.
struct DotStepRecord {
  int status;  ///< kStepStarts or kStepEnds; anything else is refused.
  int kind;    ///< Always 4; for readers of the record other than this library.
  int errorCode;
  std::string transactionId;
  std::string eventId;
  std::string stepName;
  std::string spanId;  ///< Empty until the step ends.
  std::string parentSpanId;
};

/// Writes the record of an ended step to the metrics channel. Ticks are in milliseconds.
void ReportStep(unsigned long startTick, unsigned long endTick, const DotStepRecord& record);

}  // namespace vmetrics

#endif  // VMETRICS_DOTRECORD_STEPRECORD_H_
