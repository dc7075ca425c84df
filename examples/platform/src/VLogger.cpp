// Two spdlog loggers, one a channel. Both write through a sink of ours: spdlog's own ones go
// through stdio, which cuts a long line into several writes, and then lines of two processes mix.

#include "VLogger.h"

#include <spdlog/sinks/base_sink.h>
#include <spdlog/spdlog.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>

namespace {

/// Writes each line, line break included, by one call.
class LineSink : public spdlog::sinks::base_sink<std::mutex> {
 public:
  explicit LineSink(int descriptor) : descriptor_(descriptor) {}

 private:
  void sink_it_(const spdlog::details::log_msg& message) override {
    spdlog::memory_buf_t line;
    formatter_->format(message, line);
    const char* rest = line.data();
    std::size_t left = line.size();
    while (left > 0) {  // Once, but for a pipe that is full or a signal.
      const ssize_t written = write(descriptor_, rest, left);
      if (written < 0 && errno != EINTR) {
        return;  // Nobody is told: metrics must not get in the way.
      }
      rest += written > 0 ? written : 0;
      left -= written > 0 ? static_cast<std::size_t>(written) : 0;
    }
  }

  void flush_() override {}  // Nothing is held back.

  int descriptor_;
};

/// A logger that nobody destroys: the framework's last message comes while the process exits. For
/// the same reason it is not in spdlog's registry, which goes earlier.
spdlog::logger& MakeLogger(const char* name, int descriptor, const char* pattern) {
  auto* const logger = new spdlog::logger(name, std::make_shared<LineSink>(descriptor));
  logger->set_pattern(pattern, spdlog::pattern_time_type::utc);
  return *logger;
}

spdlog::logger& MetricsChannel() {
  static spdlog::logger& logger = MakeLogger("metrics", STDOUT_FILENO, "%v");
  return logger;
}

spdlog::logger& DiagnosticsChannel() {
  static spdlog::logger& logger = []() -> spdlog::logger& {
    spdlog::logger& made =
        MakeLogger("diagnostics", STDERR_FILENO, "%Y-%m-%dT%H:%M:%S.%eZ %l %!: %v [%g:%#]");
    made.set_level(spdlog::level::warn);
    return made;
  }();
  return logger;
}

spdlog::level::level_enum SpdlogLevel(int level) {
  return level <= 1 ? spdlog::level::err : level == 2 ? spdlog::level::warn : spdlog::level::info;
}

/// printf's format is the contract's, so spdlog gets a text that is ready.
std::string Formatted(const char* format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));
std::string Formatted(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
  std::vsnprintf(&text[0], text.size() + 1, format, again);
  va_end(again);
  return text;
}

}  // namespace

VLogger& VLogger::GetInstance() {
  static VLogger instance;  // Without a destructor.
  return instance;
}

void VLogger::Log(const char* file, int line, const char* function, const char*, const char*,
                  int level, const char* format, ...) {
  if (!DiagnosticsChannel().should_log(SpdlogLevel(level))) {
    return;
  }
  std::va_list arguments;
  va_start(arguments, format);
  const std::string text = Formatted(format, arguments);
  va_end(arguments);
  DiagnosticsChannel().log(spdlog::source_loc{file, line, function}, SpdlogLevel(level),
                           spdlog::string_view_t(text));
}

void VLogger::Metrics(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const std::string text = Formatted(format, arguments);
  va_end(arguments);
  MetricsChannel().log(spdlog::level::info, spdlog::string_view_t(text));
}
