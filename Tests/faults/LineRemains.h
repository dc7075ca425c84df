/// What a line that met a fault may leave in its channel.
#ifndef LINEREMAINS_H_
#define LINEREMAINS_H_

#include <gtest/gtest.h>

#include <string>

/// Whether `content` is `before`, then `line` or a part of its beginning or nothing, then the line
/// `next`, each beginning a line of its own and none of them blank.
inline testing::AssertionResult HoldsWholeLines(const std::string& content,
                                                const std::string& before, const std::string& line,
                                                const std::string& next) {
  const std::string end = next + "\n";
  const bool framed = content.size() >= before.size() + end.size() &&
                      content.compare(0, before.size(), before) == 0 &&
                      content.compare(content.size() - end.size(), end.size(), end) == 0;
  if (!framed) {
    return testing::AssertionFailure() << testing::PrintToString(content);
  }
  const std::string middle =
      content.substr(before.size(), content.size() - before.size() - end.size());
  const bool apart = middle.empty() || (middle.size() > 1 && middle.size() <= line.size() + 1 &&
                                        middle == line.substr(0, middle.size() - 1) + "\n");
  return apart ? testing::AssertionSuccess()
               : testing::AssertionFailure() << testing::PrintToString(content);
}

#endif  // LINEREMAINS_H_
