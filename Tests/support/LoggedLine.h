/// Matchers for what reached the two channels of the faked logger.
#ifndef LOGGEDLINE_H_
#define LOGGEDLINE_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "FakePlatform.h"

// The units as log lines name them. Spelt out again here: receivers match on them.
constexpr char kVMetricsUnit[] = "Framework/VMetrics/src/VMetrics";
constexpr char kVUpMetricsUnit[] = "Framework/VMetrics/src/VUpMetrics";
constexpr char kUsbMetricsUnit[] = "Framework/VMetrics/src/UsbMetrics";

/// A line of the diagnostics channel in all its parts, but for the source line.
inline testing::Matcher<const FakePlatform::LogLine&> LoggedLine(const std::string& file,
                                                                 const std::string& function,
                                                                 int level,
                                                                 const std::string& format,
                                                                 const std::string& message) {
  using FakePlatform::LogLine;
  using testing::Field;
  return testing::AllOf(
      Field("file", &LogLine::file, file), Field("line", &LogLine::line, testing::Gt(0)),
      Field("function", &LogLine::function, function), Field("text1", &LogLine::text1, " "),
      Field("text2", &LogLine::text2, ""), Field("level", &LogLine::level, level),
      Field("format", &LogLine::format, format), Field("message", &LogLine::message, message));
}

/// The same for a format without arguments, which is its own message.
inline testing::Matcher<const FakePlatform::LogLine&> LoggedLine(const std::string& file,
                                                                 const std::string& function,
                                                                 int level,
                                                                 const std::string& message) {
  return LoggedLine(file, function, level, message, message);
}

/// The line with which an entry refuses a record for its length.
inline testing::Matcher<const FakePlatform::LogLine&> LoggedInvalidLength(
    const std::string& function, const std::string& length) {
  return LoggedLine(kVMetricsUnit, function, 1, "invalid data length=%d",
                    "invalid data length=" + length);
}

/// The line with which the general submission tells of any failure.
inline testing::Matcher<const FakePlatform::LogLine&> LoggedSubmissionFailure() {
  return LoggedLine(kVUpMetricsUnit, "SendStringDataToMetric", 1, "SendStringDataToMetric failed");
}

/// A line of the metrics channel: never a format of its own.
inline testing::Matcher<const FakePlatform::MetricsLine&> EmittedLine(const std::string& text) {
  using FakePlatform::MetricsLine;
  return testing::AllOf(testing::Field("format", &MetricsLine::format, "%s"),
                        testing::Field("text", &MetricsLine::text, text));
}

/// One line was written, and nothing logged.
inline void ExpectOnlyEmitted(const std::string& line) {
  EXPECT_THAT(FakePlatform::MetricsLines(), testing::ElementsAre(EmittedLine(line)));
  EXPECT_THAT(FakePlatform::LogLines(), testing::IsEmpty());
}

/// Nothing was written, and one line logged.
inline void ExpectOnlyLogged(const testing::Matcher<const FakePlatform::LogLine&>& line) {
  EXPECT_THAT(FakePlatform::MetricsLines(), testing::IsEmpty());
  EXPECT_THAT(FakePlatform::LogLines(), testing::ElementsAre(line));
}

/// Nothing was written, and two lines logged: that of the cause and that of the failure.
inline void ExpectOnlyLogged(const testing::Matcher<const FakePlatform::LogLine&>& cause,
                             const testing::Matcher<const FakePlatform::LogLine&>& failure) {
  EXPECT_THAT(FakePlatform::MetricsLines(), testing::IsEmpty());
  EXPECT_THAT(FakePlatform::LogLines(), testing::ElementsAre(cause, failure));
}

#endif  // LOGGEDLINE_H_
