/// Lines by which a reader of a shared channel can tell whether any is torn, lost or out of order.
#ifndef NUMBEREDLINES_H_
#define NUMBEREDLINES_H_

#include <cstdio>
#include <string>

/// Line `number` of `process`: both numbers and the length, and a pattern that depends on them.
inline std::string NumberedLine(int process, int number, int length) {
  char head[64];
  std::snprintf(head, sizeof head, "%d %06d %05d ", process, number, length);
  const auto size = static_cast<std::size_t>(length);
  std::string line = head;
  line.reserve(size + 64);
  while (line.size() < size) {
    line.append(&"abcdefghijklmnopqrstuvwxyz0123456789"[(number + process) % 10]);
  }
  line.resize(size);
  return line;
}

/// The mix of lengths: one line in 250 has 60,000 bytes, one in 25 has 4,000 to 8,999, the others
/// 40 to 439; none is longer than `longest`.
inline int NumberedLineLength(int number, int longest) {
  const int length = number % 250 == 249 ? 60'000
                     : number % 25 == 24 ? 4'000 + number % 5'000
                                         : 40 + number * 37 % 400;
  return length < longest ? length : longest;
}

#endif  // NUMBEREDLINES_H_
