/// \file
/// The platform's clock.
#ifndef VDATETIME_H_
#define VDATETIME_H_

/// Static functions only; every one may be called from any thread at any time.
class VDateTime {
 public:
  VDateTime() = delete;

  /// The current tick: milliseconds since the Unix epoch, from the system clock.
  ///
  /// Ticks of different processes on one machine compare. They follow the system clock, so they may
  /// step backwards when it is set.
  static unsigned long GetCurrentTick();
};

#endif  // VDATETIME_H_
