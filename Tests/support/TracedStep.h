/// A step like any other.
#ifndef TRACEDSTEP_H_
#define TRACEDSTEP_H_

#include "VMetrics.h"

/// Starts the step and ends it, its parent taken from the span file; 0 where both went well.
inline int TraceStep() {
  const int started = VMetrics::InsertRecord(0, "t", "e", "s", "", 0);
  return started | VMetrics::InsertRecord(1, "t", "e", "s", "ParentSpanId", 0);
}

#endif  // TRACEDSTEP_H_
