/// The platform's clock.
#ifndef EXAMPLE_VDATETIME_H_
#define EXAMPLE_VDATETIME_H_

class VDateTime {
 public:
  /// Milliseconds since the Unix epoch: ticks of several processes compare.
  static unsigned long GetCurrentTick();
};

#endif  // EXAMPLE_VDATETIME_H_
