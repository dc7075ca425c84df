// A process that uses the library as its arguments tell it: a list of commands, each followed by
// the arguments of its own.

#include <dlfcn.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "CommaLocale.h"
#include "DescriptorTable.h"
#include "FileSizeLimit.h"
#include "NumberedLines.h"
#include "ProbeCalls.h"
#include "ProbeSignals.h"
#include "ProbeThreads.h"
#include "VLogger.h"
#include "VMetrics.h"

// The embedded platform's own; another one does without the commands that need it.
#if __has_include("VPlatformConfig.h")
#include "VPlatformConfig.h"
#define PROBE_HAS_CONFIGURATION
#endif

namespace {

const auto startOfProcess = std::chrono::steady_clock::now();

/// A text argument; "null" stands for the null pointer.
const char* OrNull(const char* text) { return std::string(text) == "null" ? nullptr : text; }

void Expect(bool done, const char* what) {
  if (!done) {
    std::perror(what);
    std::exit(2);
  }
}

/// Waits until standard input ends.
void WaitAtGate() {
  char byte;
  while (read(STDIN_FILENO, &byte, 1) > 0) {
  }
}

void Insert(char** arguments) {
  const int result =
      VMetrics::InsertRecord(std::atoi(arguments[0]), OrNull(arguments[1]), OrNull(arguments[2]),
                             OrNull(arguments[3]), OrNull(arguments[4]), std::atoi(arguments[5]));
  Say("insert", std::to_string(result));
}

/// Starts the step "s" of `count` transactions.
void StartTransactions(int count) {
  for (int i = 0; i < count; ++i) {
    const std::string id = "transaction " + std::to_string(i);
    VMetrics::InsertRecord(0, id.c_str(), "e", "s", "", 0);
  }
}

void WriteNumberedLines(int process, int count, int longest) {
  for (int number = 0; number < count; ++number) {
    const std::string line = NumberedLine(process, number, NumberedLineLength(number, longest));
    VLogger::GetInstance().Metrics("%s", line.c_str());
  }
}

/// Says a number as a stream of C++ writes it, and one as C does.
void SayNumbers() {
  std::ostringstream stream;
  stream << 1234567;
  Say("number", stream.str());
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", 1234567.5);
  Say("number", text);
}

/// From here on a file that grows beyond `bytes` kills the process, unless the library sees to it.
void LimitFileSize(rlim_t bytes) {
  std::signal(SIGXFSZ, SIG_DFL);
  FileSizeLimit::Set(bytes);
}

/// Calls everything when it is destroyed.
struct LastCaller {
  ~LastCaller() { CallEverything("destructor"); }
};

void SayElapsed() {
  using std::chrono::milliseconds;
  const auto elapsed = std::chrono::steady_clock::now() - startOfProcess;
  Say("elapsed", std::to_string(std::chrono::duration_cast<milliseconds>(elapsed).count()));
}

void* lateLibrary = nullptr;

void LoadLateLibrary() {
  lateLibrary = dlopen(VMETRICS_LATE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  Expect(lateLibrary != nullptr, VMETRICS_LATE_LIBRARY);
  reinterpret_cast<void (*)()>(dlsym(lateLibrary, "CallFromLateLibrary"))();
}

void UnloadLateLibrary() {
  Expect(dlclose(lateLibrary) == 0, "dlclose");
  Expect(dlopen(VMETRICS_LATE_LIBRARY, RTLD_NOW | RTLD_NOLOAD) == nullptr, "still loaded");
}

/// On standard error, as standard output may be a device.
void SayDescriptors() {
  std::string numbers;
  for (const int number : DescriptorTable::All()) {
    numbers += " " + std::to_string(number);
  }
  std::fprintf(stderr, "descriptors%s\n", numbers.c_str());
}

struct Command {
  int arguments;
  std::function<void(char**)> run;
};

const std::map<std::string, Command>& Commands() {
  static const std::map<std::string, Command>& commands = *new std::map<std::string, Command>{
#ifdef PROBE_HAS_CONFIGURATION
      {"metrics", {1, [](char** a) { Expect(VPlatformConfig::SetMetricsFile(a[0]), a[0]); }}},
      {"diagnostics", {1, [](char** a) { VPlatformConfig::SetDiagnosticsLevel(atoi(a[0])); }}},
      {"locks", {1, [](char** a) { Expect(VPlatformConfig::SetLockFileDirectory(a[0]), a[0]); }}},
#endif
      {"gate", {0, [](char**) { WaitAtGate(); }}},
      {"insert", {6, Insert}},
      {"parent", {0, [](char**) { Say("parent", VMetrics::GetCurrentParentSpanId()); }}},
      {"transactions", {1, [](char** a) { StartTransactions(atoi(a[0])); }}},
      {"remark", {1, [](char** a) { std::fprintf(stderr, "%s\n", a[0]); }}},
      {"elapsed", {0, [](char**) { SayElapsed(); }}},
      {"everything", {0, [](char**) { CallEverything("everything"); }}},
      {"everything-at-exit", {0, [](char**) { std::atexit([] { CallEverything("at exit"); }); }}},
      {"everything-in-destructor", {0, [](char**) { static const LastCaller lastCaller; }}},
      {"load-library", {0, [](char**) { LoadLateLibrary(); }}},
      {"unload-library", {0, [](char**) { UnloadLateLibrary(); }}},
      {"descriptors", {0, [](char**) { SayDescriptors(); }}},
      {"execs", {1, [](char** a) { ExecAmongThreads(atoi(a[0])); }}},
      {"comma-locale", {0, [](char**) { static const CommaLocale commaLocale; }}},
      {"numbers", {0, [](char**) { SayNumbers(); }}},
      {"limit-file-size", {1, [](char** a) { LimitFileSize(strtoul(a[0], nullptr, 10)); }}},
      {"lift-file-size-limit", {0, [](char**) { FileSizeLimit::Lift(); }}},
      {"lines", {3, [](char** a) { WriteNumberedLines(atoi(a[0]), atoi(a[1]), atoi(a[2])); }}},
      {"signals", {0, [](char**) { RaiseSignals(); }}},
      {"work-under-signals",
       {3, [](char** a) { WorkUnderSignals(atoi(a[0]), atoi(a[1]), atoi(a[2])); }}},
      {"threads", {2, [](char** a) { CallFromThreads(atoi(a[0]), atoi(a[1])); }}},
      {"forks", {1, [](char** a) { ForkAmongThreads(atoi(a[0])); }}},
  };
  return commands;
}

}  // namespace

int main(int count, char** arguments) {
  for (int i = 1; i < count;) {
    const auto command = Commands().find(arguments[i]);
    if (command == Commands().end() || i + command->second.arguments >= count) {
      std::fprintf(stderr, "probe: no such command, or too short: %s\n", arguments[i]);
      return 2;
    }
    command->second.run(arguments + i + 1);
    i += 1 + command->second.arguments;
  }
  return 0;
}
