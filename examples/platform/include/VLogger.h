/// The platform's logger, on spdlog: see src/VLogger.cpp.
#ifndef EXAMPLE_VLOGGER_H_
#define EXAMPLE_VLOGGER_H_

class VLogger {
 public:
  /// The one of the process. It must outlive the framework, so it is never destroyed.
  static VLogger& GetInstance();

  /// Writes to the diagnostics channel. The framework passes " " and "" as texts, and the levels 1,
  /// 2, 3: error, warning, information. The attribute lets the compiler check the arguments.
  void Log(const char* file, int line, const char* function, const char* text1, const char* text2,
           int level, const char* format, ...) __attribute__((format(printf, 8, 9)));

  /// Writes to the metrics channel. The framework passes the format "%s" and one line of JSON.
  void Metrics(const char* format, ...) __attribute__((format(printf, 2, 3)));
};

#endif  // EXAMPLE_VLOGGER_H_
