#include "Verdict.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "IndependentJson.h"

namespace {

void Print(const char* label, std::string_view text) {
  std::fprintf(stderr, "%s: ", label);
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    std::fprintf(stderr, byte >= 0x20 && byte < 0x7F ? "%c" : "\\x%02X", byte);
  }
  std::fprintf(stderr, "\n");
}

[[noreturn]] void Fail(const char* what, std::string_view actual, std::string_view expected) {
  std::fprintf(stderr, "FAULT: %s\n", what);
  Print("actual", actual);
  Print("expected", expected);
  std::abort();
}

bool IsOneLine(std::string_view text) {
  return std::none_of(text.begin(), text.end(),
                      [](char character) { return static_cast<unsigned char>(character) < 0x20; });
}

}  // namespace

void Require(bool condition, const char* what) {
  if (!condition) {
    Fail(what, "false", "true");
  }
}

void RequireEqual(std::string_view actual, std::string_view expected, const char* what) {
  if (actual != expected) {
    Fail(what, actual, expected);
  }
}

void RequireLine(std::string_view line, std::string_view expected, std::string_view keys) {
  RequireEqual(line, expected, "the line");
  if (line.empty()) {
    return;
  }
  Require(IsOneLine(line), "one line");
  if (IndependentJson::MayHaveLargeNumber(line)) {
    return;
  }
  const std::optional<std::string> found = IndependentJson::Keys(line);
  Require(found.has_value(), "valid JSON");
  RequireEqual(*found, keys, "the keys");
}

void RequireRecord(std::string_view line, const std::optional<Oracle::Object>& expected,
                   std::string_view keys) {
  const bool withArguments = expected.has_value() && expected->back().key == "args";
  RequireLine(line, Oracle::Line(expected), std::string(keys) + (withArguments ? ",args" : ""));
}
