/// \file
/// The platform's logger: a diagnostics channel for people and a metrics channel for machines.
#ifndef VLOGGER_H_
#define VLOGGER_H_

/// One instance a process, never destroyed: it may be used from the moment the library is loaded
/// to the last destructor of the process, from any thread, and in a child after fork. Neither
/// function changes errno or keeps a pointer past the call, or throws but where its comment says
/// so.
class VLogger {
 public:
  /// The one instance.
  static VLogger& GetInstance();

  /// Writes one line to the diagnostics channel, if its level is let through.
  ///
  /// `file`, `line` and `function` tell where the line comes from. `text1` and `text2` are free for
  /// tags, and left out where blank. `level` is 1 for an error, 2 for a warning, 3 for information.
  /// `format` and what follows it make the message as printf does. Control characters come out
  /// escaped and a very long message is cut, so a line is always one line.
  void Log(const char* file, int line, const char* function, const char* text1, const char* text2,
           int level, const char* format, ...) __attribute__((format(printf, 8, 9)));

  /// Writes the formatted text and a line break to the metrics channel, as one line.
  ///
  /// The text is taken as it is: the caller sees to it that it holds no line break. The format "%s"
  /// allocates nothing; another one may throw std::bad_alloc when its text is long.
  void Metrics(const char* format, ...) __attribute__((format(printf, 2, 3)));

  VLogger(const VLogger&) = delete;
  VLogger& operator=(const VLogger&) = delete;

 private:
  constexpr VLogger() = default;
};

#endif  // VLOGGER_H_
