#include "WritersLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

#include "KilledWriter.h"
#include "LineCutter.h"
#include "SpanIdentifierForm.h"
#include "TextMember.h"

WritersLog::WritersLog(const std::string& path, int writers)
    : next_(static_cast<std::size_t>(writers)) {
  vmetrics::LineRecovery recovery;
  vmetrics::LineCutter cutter;
  const auto take = [&](std::string_view line) {
    for (const std::string_view text : recovery.TextsOf(line)) {
      Take(text);
    }
  };
  std::ifstream file(path, std::ios::binary);
  std::vector<char> block(1 << 20);
  while (file.read(block.data(), static_cast<std::streamsize>(block.size())), file.gcount() > 0) {
    cutter.Add({block.data(), static_cast<std::size_t>(file.gcount())}, take);
  }
  cutter.Finish(take);
  EXPECT_EQ(cutter.Overlong(), 0U);
  counts_ = recovery.Total();
}

std::size_t WritersLog::ParentsWithoutStep() const {
  return static_cast<std::size_t>(
      std::count_if(parents_.begin(), parents_.end(),
                    [&](const std::string& parent) { return identifiers_.count(parent) == 0; }));
}

void WritersLog::Take(std::string_view text) {
  const std::string copy(text);
  TextMember(copy, "eventId") == "kills" ? TakeLine(copy) : TakeStep(copy);
}

void WritersLog::TakeLine(const std::string& text) { TakeNumber(text, TextMember(text, "text")); }

void WritersLog::TakeStep(const std::string& text) {
  const std::string identifier = TextMember(text, "spanId");
  const std::string parent = TextMember(text, "parentSpanId");
  EXPECT_PRED1(IsSpanIdentifier, identifier) << text;
  identifiers_.insert(identifier);
  ++steps_;
  if (parent == "ParentSpanId") {
    ++refused_;
  } else if (!parent.empty()) {  // As it is for the first, who finds an empty file.
    EXPECT_PRED1(IsSpanIdentifier, parent) << text;
    parents_.insert(parent);
  }
  TakeNumber(text, TextMember(text, "stepName"));
}

/// The text must be the next one of its writer, and hold exactly what was written.
void WritersLog::TakeNumber(const std::string& text, const std::string& numbers) {
  int writer = -1;
  int number = -1;
  if (std::sscanf(numbers.c_str(), "%d %d", &writer, &number) != 2 || writer < 0 ||
      writer >= static_cast<int>(next_.size())) {
    ADD_FAILURE() << "not a text of ours: " << text.substr(0, 300);
    return;
  }
  int& next = next_[static_cast<std::size_t>(writer)];
  EXPECT_EQ(number, next) << "lost or out of order, of writer " << writer;
  next = number + 1;
  if (!KilledWriter::IsStep(number)) {
    EXPECT_TRUE(text == KilledWriter::Line(writer, number)) << text.substr(0, 300);
  } else {
    EXPECT_EQ(numbers, KilledWriter::StepName(writer, number)) << text;
  }
}
