/// The places in the code from which a reporter's failures are logged.
#ifndef FAILURESITES_H_
#define FAILURESITES_H_

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <vector>

#include "FakePlatform.h"
#include "LoggedLine.h"

/// A call of a reporter that fails.
using FailingReport = std::function<int()>;

/// Whether each of `reports` fails with -10000 and nothing on the metrics channel, and the last
/// line that it logs is `failure`, from a source line of its own.
inline void ExpectSitesOfTheirOwn(const std::vector<FailingReport>& reports,
                                  const testing::Matcher<const FakePlatform::LogLine&>& failure) {
  std::set<int> lines;
  for (std::size_t i = 0; i < reports.size(); ++i) {
    SCOPED_TRACE(i);
    FakePlatform::Reset();
    EXPECT_EQ(reports[i](), -10000);
    EXPECT_TRUE(FakePlatform::MetricsLines().empty());
    ASSERT_FALSE(FakePlatform::LogLines().empty());
    EXPECT_THAT(FakePlatform::LogLines().back(), failure);
    lines.insert(FakePlatform::LogLines().back().line);
  }
  EXPECT_EQ(lines.size(), reports.size());
}

/// `report` with its `number`th bounds-checked copy refused.
inline FailingReport WithRefusedCopy(int number, const FailingReport& report) {
  return [number, report] {
    FakePlatform::FailCopy(number);
    return report();
  };
}

#endif  // FAILURESITES_H_
