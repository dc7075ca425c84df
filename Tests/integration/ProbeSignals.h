/// What a probe does while signals interrupt it.
#ifndef PROBESIGNALS_H_
#define PROBESIGNALS_H_

/// From here on a signal comes each millisecond; its handler lets system calls fail with EINTR.
void RaiseSignals();

/// Until `signals` more have come: writes the numbered lines of `process` and traces a step after
/// each. Says how many "lines" there are, what "failed", and the "longest" call in milliseconds.
void WorkUnderSignals(int process, int signals, int longest);

#endif  // PROBESIGNALS_H_
