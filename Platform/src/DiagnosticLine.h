/// One line of the diagnostics channel.
#ifndef PLATFORM_DIAGNOSTICLINE_H_
#define PLATFORM_DIAGNOSTICLINE_H_

#include <cstdarg>
#include <cstddef>
#include <string_view>

/// Puts a line together in a buffer of its own: no allocation, no lock and no locale, as a line may
/// be needed when memory is out, or in the child of a fork.
///
///     2026-03-01T09:30:00.250Z ERROR InsertRecord: object is nullptr [Framework/.../DotRecord:31]
///
/// Control characters appear as \xNN. What does not fit is cut, and the cut shown by "...".
class DiagnosticLine {
 public:
  /// `tick`: milliseconds since the Unix epoch. Level 1 is an error, 2 a warning, 3 information.
  void AppendHead(unsigned long tick, int level, const char* function);
  /// Appends a tag in parentheses, unless it is null or blank.
  void AppendTag(const char* text);
  void AppendMessage(const char* format, std::va_list arguments)
      __attribute__((format(printf, 2, 0)));
  void AppendSource(const char* file, int line);

  std::string_view Text() const { return {text_, size_}; }

 private:
  /// Short enough to go through a pipe in one piece, with its line break.
  static constexpr std::size_t kLongestLine = 4000;
  /// What a message leaves free for the source behind it.
  static constexpr std::size_t kRoomForSource = 200;

  void AppendFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));
  void AppendEscaped(std::string_view text, std::size_t longest);
  void AppendTime(unsigned long tick);
  void Append(std::string_view piece);

  std::size_t size_ = 0;
  char text_[kLongestLine];
};

#endif  // PLATFORM_DIAGNOSTICLINE_H_
