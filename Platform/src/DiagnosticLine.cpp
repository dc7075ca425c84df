#include "DiagnosticLine.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::string_view kCut = "...";

const char* LevelName(int level) {
  switch (level) {
    case 1:
      return "ERROR";
    case 2:
      return "WARNING";
    case 3:
      return "INFO";
    default:
      return "DEBUG";
  }
}

const char* OrUnknown(const char* text) { return text == nullptr ? "?" : text; }

bool IsControl(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte < 0x20 || byte == 0x7F;
}

struct Date {
  long year;
  long month;
  long day;
};

/// The date in the Gregorian calendar, `days` after 1970-01-01. The C library's gmtime takes a
/// lock, on which the child of a threaded process could wait for ever.
Date DateOf(long days) {
  // Years are counted from the first of March, so that a leap day is the last day of its year, and
  // in eras of 400 years, which all have 146,097 days. 719,468 days lie between 0000-03-01 and the
  // epoch.
  const long shifted = days + 719468;
  const long era = shifted / 146097;
  const long dayOfEra = shifted % 146097;
  const long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const long marchMonth = (5 * dayOfYear + 2) / 153;
  const long month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
  return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month,
          dayOfYear - (153 * marchMonth + 2) / 5 + 1};
}

}  // namespace

void DiagnosticLine::AppendHead(unsigned long tick, int level, const char* function) {
  AppendTime(tick);
  AppendFormat(" %s %.100s:", LevelName(level), OrUnknown(function));
}

void DiagnosticLine::AppendTime(unsigned long tick) {
  const long milliseconds = static_cast<long>(tick % 86'400'000);
  const Date date = DateOf(static_cast<long>(tick / 86'400'000));
  AppendFormat("%04ld-%02ld-%02ldT%02ld:%02ld:%02ld.%03ldZ", date.year, date.month, date.day,
               milliseconds / 3'600'000, milliseconds / 60'000 % 60, milliseconds / 1000 % 60,
               milliseconds % 1000);
}

void DiagnosticLine::AppendTag(const char* text) {
  if (text != nullptr && text[std::strspn(text, " ")] != '\0') {
    AppendFormat(" (%.100s)", text);
  }
}

void DiagnosticLine::AppendMessage(const char* format, std::va_list arguments) {
  char message[kLongestLine];
  if (std::vsnprintf(message, sizeof message, format, arguments) < 0) {
    std::snprintf(message, sizeof message, "%s", format);  // An argument that cannot be converted.
  }
  AppendEscaped(" ", kLongestLine);
  AppendEscaped(message, kLongestLine - kRoomForSource);
}

void DiagnosticLine::AppendSource(const char* file, int line) {
  AppendFormat(" [%.150s:%d]", OrUnknown(file), line);
}

void DiagnosticLine::AppendFormat(const char* format, ...) {
  char text[kRoomForSource];
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  AppendEscaped(text, kLongestLine);
}

/// Appends as much of `text` as leaves the line no longer than `longest`.
void DiagnosticLine::AppendEscaped(std::string_view text, std::size_t longest) {
  for (const char character : text) {
    char escape[8] = {character};
    if (IsControl(character)) {
      std::snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned char>(character));
    }
    const std::string_view piece = escape;
    if (size_ + piece.size() + kCut.size() > longest) {
      Append(kCut);
      return;
    }
    Append(piece);
  }
}

/// Appends `piece` as it is, or nothing of it if the line is full.
void DiagnosticLine::Append(std::string_view piece) {
  if (size_ + piece.size() <= sizeof text_) {
    std::memcpy(text_ + size_, piece.data(), piece.size());
    size_ += piece.size();
  }
}
