#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <new>
#include <sstream>
#include <string>
#include <string_view>

#include "AllocationFailure.h"
#include "ChildProcess.h"
#include "FileContent.h"
#include "FileSizeLimit.h"
#include "NonRegularFiles.h"
#include "TemporaryDirectory.h"
#include "TestPipe.h"
#include "VLogger.h"
#include "VPlatformConfig.h"

namespace {

VLogger& Logger() { return VLogger::GetInstance(); }

void LogAtLevel(int level) {
  Logger().Log("file", 7, "Function", " ", "", level, "level %d", level);
}

void Redirect(int stream, const std::string& path) {
  const int opened = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  EXPECT_EQ(dup2(opened, stream), stream);
  close(opened);
}

/// Makes every write to standard output fail, with SIGPIPE as a process finds it.
void BreakStandardOutput() {
  TestPipe pipe;
  signal(SIGPIPE, SIG_DFL);
  EXPECT_EQ(dup2(pipe.Writer(), STDOUT_FILENO), STDOUT_FILENO);
}

/// The logger belongs to the process, so each test has one that is new.
class VLoggerTest : public testing::Test {
 protected:
  /// Runs `body` in a process whose standard output and standard error are files.
  template <typename Body>
  void Run(Body body) {
    EXPECT_EQ(ChildProcess::Run([&] {
                Redirect(STDOUT_FILENO, output_);
                Redirect(STDERR_FILENO, error_);
                body();
              }),
              "exited with 0")
        << Output() << Error();
  }

  std::string Output() const { return FileContent::Read(output_); }
  std::string Error() const { return FileContent::Read(error_); }

  /// What came out on standard error, the times left out, which must be there, and the numbers of
  /// the logger's own lines.
  std::string Diagnostics() const { return WithoutTimes(Error()); }

  static std::string WithoutTimes(const std::string& lines) {
    std::istringstream stream(lines);
    std::string out;
    for (std::string line; std::getline(stream, line);) {
      const std::string_view shape = "0000-00-00T00:00:00.000Z ";
      const bool timed = Shape(line.substr(0, shape.size())) == shape;
      EXPECT_TRUE(timed) << line;
      out += line.substr(0, line.find(kOwn)).substr(timed ? shape.size() : 0);
      out += line.find(kOwn) == std::string::npos ? "\n" : "[own]\n";
    }
    return out;
  }

  /// `text` with a zero for each digit.
  static std::string Shape(std::string text) {
    for (char& character : text) {
      character = character >= '0' && character <= '9' ? '0' : character;
    }
    return text;
  }

  static constexpr char kOwn[] = "[Platform/src/VLogger:";

  const TemporaryDirectory directory_;
  const std::string output_ = directory_ / "output";
  const std::string error_ = directory_ / "error";
  const std::string path_ = directory_ / "file";
};

TEST_F(VLoggerTest, ThereIsOneInstance) { EXPECT_EQ(&VLogger::GetInstance(), &Logger()); }

TEST_F(VLoggerTest, MetricsGoToStandardOutput) {
  Run([] { Logger().Metrics("%s", "text"); });
  EXPECT_EQ(Output(), "text\n");
  EXPECT_EQ(Error(), "");
}

TEST_F(VLoggerTest, DiagnosticsGoToStandardError) {
  Run([] {
    Logger().Log("Framework/VMetrics/src/DotRecord", 31, "InsertRecord", " ", "", 1,
                 "status %d of %s", -9996, "step");
  });
  EXPECT_EQ(Output(), "");
  EXPECT_EQ(Diagnostics(),
            "ERROR InsertRecord: status -9996 of step [Framework/VMetrics/src/DotRecord:31]\n");
}

TEST_F(VLoggerTest, DiagnosticsTellTheirTags) {
  Run([] {
    Logger().Log("file", 1, "Function", "one", "", 2, "message");
    Logger().Log("file", 2, "Function", " ", "two", 2, "message");
    Logger().Log(nullptr, 3, nullptr, nullptr, nullptr, 2, "message");
  });
  EXPECT_EQ(Diagnostics(),
            "WARNING Function: (one) message [file:1]\n"
            "WARNING Function: (two) message [file:2]\n"
            "WARNING ?: message [?:3]\n");
}

TEST_F(VLoggerTest, ADiagnosticIsOneLineWhateverItSays) {
  Run([] {
    Logger().Log("file", 1, "Function", " ", "", 1, "%s", "a\nb\r\x1B[31m");
    Logger().Log("file", 2, "Function", " ", "", 1, "%s", std::string(100'000, 'x').c_str());
  });
  const std::string lines = Diagnostics();
  EXPECT_EQ(lines.substr(0, lines.find('\n') + 1),
            "ERROR Function: a\\x0ab\\x0d\\x1b[31m [file:1]\n");
  EXPECT_EQ(lines.substr(lines.find('\n') + 1),
            "ERROR Function: " + std::string(3797 - 41, 'x') + "... [file:2]\n");
}

TEST_F(VLoggerTest, ErrorsAndWarningsAreLetThroughAtFirst) {
  Run([] {
    for (int level = 1; level <= 4; ++level) {
      LogAtLevel(level);
    }
  });
  EXPECT_EQ(Diagnostics(),
            "ERROR Function: level 1 [file:7]\n"
            "WARNING Function: level 2 [file:7]\n");
}

TEST_F(VLoggerTest, TheHostChoosesTheLevel) {
  const std::string lines[] = {"", "ERROR Function: level 1 [file:7]\n",
                               "WARNING Function: level 2 [file:7]\n",
                               "INFO Function: level 3 [file:7]\n"};
  std::string expected;
  for (int chosen = 0; chosen <= 3; ++chosen) {
    Run([&] {
      VPlatformConfig::SetDiagnosticsLevel(chosen);
      for (int level = 1; level <= 4; ++level) {
        LogAtLevel(level);
      }
    });
    for (int level = 1; level <= chosen; ++level) {
      expected += lines[level];
    }
    EXPECT_EQ(Diagnostics(), expected) << chosen;
  }
}

TEST_F(VLoggerTest, MetricsTakesTextAsItIs) {
  const std::string text = "{\"a\":\"100 %s %n\",\"b\":\"" + std::string(60'000, 'x') + "\"}";
  Run([&] {
    Logger().Metrics("%s", text.c_str());
    Logger().Metrics("%s", "");
  });
  EXPECT_EQ(Output(), text + "\n\n");
}

TEST_F(VLoggerTest, MetricsTakesANullText) {
  Run([] {
    const char* volatile none = nullptr;  // Unknown to the compiler, which would warn.
    Logger().Metrics("%s", none);
  });
  EXPECT_EQ(Output(), "(null)\n");
}

TEST_F(VLoggerTest, MetricsFormatsAsPrintfDoes) {
  Run([] {
    Logger().Metrics("plain");
    Logger().Metrics("%d%% of %s, %5.2f", 12, "%s", 2.5);
    Logger().Metrics("%.3s", "abcdef");
  });
  EXPECT_EQ(Output(), "plain\n12% of %s,  2.50\nabc\n");
}

TEST_F(VLoggerTest, MetricsFormatsTextOfAnyLength) {
  std::string expected;
  for (const std::size_t length : {1022U, 1023U, 1024U, 1025U, 60'000U}) {
    Run([&] { Logger().Metrics("<%s>", std::string(length - 2, 'x').c_str()); });
    expected += "<" + std::string(length - 2, 'x') + ">\n";
    EXPECT_EQ(Output(), expected);
  }
}

TEST_F(VLoggerTest, EachLineIsOneWrite) {
  Run([] {
    const TestPipe packets(O_DIRECT);  // It gives each write back for itself.
    EXPECT_EQ(dup2(packets.Writer(), STDOUT_FILENO), STDOUT_FILENO);
    EXPECT_EQ(dup2(packets.Writer(), STDERR_FILENO), STDERR_FILENO);
    const std::string text(2000, 'x');
    Logger().Metrics("%s", text.c_str());
    EXPECT_EQ(packets.Read(), text + "\n");
    Logger().Metrics("%s%d", text.c_str(), 1);
    EXPECT_EQ(packets.Read(), text + "1\n");
    Logger().Log("file", 1, "Function", " ", "", 1, "%s", text.c_str());
    EXPECT_EQ(WithoutTimes(packets.Read()), "ERROR Function: " + text + " [file:1]\n");
  });
}

TEST_F(VLoggerTest, MetricsOfTextAllocatesNothing) {
  const std::string text(60'000, 'x');
  Run([&] {
    const long before = AllocationFailure::Allocations();
    Logger().Metrics("%s", text.c_str());
    Logger().Metrics("%s", "short");
    Logger().Metrics("short %d", 1);
    EXPECT_EQ(AllocationFailure::Allocations(), before);
  });
}

TEST_F(VLoggerTest, LogAllocatesNothing) {
  const std::string text(60'000, 'x');
  Run([&] {
    const long before = AllocationFailure::Allocations();
    Logger().Log("file", 1, "Function", "one", "two", 1, "%s", text.c_str());
    EXPECT_EQ(AllocationFailure::Allocations(), before);
  });
}

TEST_F(VLoggerTest, LongFormattedMetricsThrowWhereMemoryRunsOut) {
  const std::string text(2000, 'x');
  Run([&] {
    errno = EDOM;
    {
      const AllocationFailure failure(1);
      EXPECT_THROW(Logger().Metrics("<%s>", text.c_str()), std::bad_alloc);
    }
    EXPECT_EQ(errno, EDOM);
    Logger().Metrics("next");
  });
  EXPECT_EQ(Output(), "next\n");
}

void ExpectErrnoKept() {
  errno = EDOM;
  Logger().Metrics("%s", "text");
  EXPECT_EQ(errno, EDOM);
  Logger().Metrics("text %d", 1);
  EXPECT_EQ(errno, EDOM);
  LogAtLevel(1);
  EXPECT_EQ(errno, EDOM);
  LogAtLevel(3);
  EXPECT_EQ(errno, EDOM);
}

TEST_F(VLoggerTest, BothChannelsKeepErrno) { Run(ExpectErrnoKept); }

TEST_F(VLoggerTest, BothChannelsKeepErrnoWhereTheyFail) {
  Run([] {
    BreakStandardOutput();
    EXPECT_EQ(dup2(STDOUT_FILENO, STDERR_FILENO), STDERR_FILENO);
    ExpectErrnoKept();
  });
}

TEST_F(VLoggerTest, ALossIsToldOnceAndCountedWhenItIsOver) {
  Run([this] {
    BreakStandardOutput();
    for (int i = 0; i < 3; ++i) {
      Logger().Metrics("%s", "secret");
    }
    Redirect(STDOUT_FILENO, output_);
    Logger().Metrics("%s", "first");
    Logger().Metrics("%s", "second");
  });
  EXPECT_EQ(Output(), "first\nsecond\n");
  EXPECT_EQ(
      Diagnostics(),
      "ERROR Metrics: metrics channel: a line is lost, maybe more to come: Broken pipe [own]\n"
      "WARNING Metrics: metrics channel: written to again, lines lost: 3 [own]\n");
}

TEST_F(VLoggerTest, EachLossIsTold) {
  Run([] {
    const TestPipe whole;
    for (int i = 0; i < 2; ++i) {
      BreakStandardOutput();
      Logger().Metrics("%s", "secret");
      EXPECT_EQ(dup2(whole.Writer(), STDOUT_FILENO), STDOUT_FILENO);
      Logger().Metrics("%s", "text");
    }
  });
  const std::string loss =
      "ERROR Metrics: metrics channel: a line is lost, maybe more to come: Broken pipe [own]\n"
      "WARNING Metrics: metrics channel: written to again, lines lost: 1 [own]\n";
  EXPECT_EQ(Diagnostics(), loss + loss);
}

TEST_F(VLoggerTest, ALineThatASizeLimitCutsIsLost) {
  Run([this] {
    signal(SIGXFSZ, SIG_DFL);
    EXPECT_TRUE(VPlatformConfig::SetMetricsFile(path_));
    TestPipe diagnostics;  // Which no limit concerns.
    EXPECT_EQ(dup2(diagnostics.Writer(), STDERR_FILENO), STDERR_FILENO);
    FileSizeLimit::Set(3);
    Logger().Metrics("%s", "secret");
    Logger().Metrics("%s", "secret");
    FileSizeLimit::Lift();
    Logger().Metrics("%s", "next");
    EXPECT_EQ(
        WithoutTimes(diagnostics.Drain()),
        "ERROR Metrics: metrics channel: a line is lost, maybe more to come: File too large [own]\n"
        "WARNING Metrics: metrics channel: written to again, lines lost: 2 [own]\n");
  });
  EXPECT_EQ(FileContent::Read(path_), "sec\nnext\n");
}

TEST_F(VLoggerTest, TextThatCannotBeConvertedIsALoss) {
  Run([] {
    const wchar_t noCharacter[] = {std::numeric_limits<wchar_t>::max(), 0};
    Logger().Metrics("<%ls>", noCharacter);
    Logger().Metrics("%s", "next");
  });
  EXPECT_EQ(Output(), "next\n");
  EXPECT_EQ(Diagnostics(),
            "ERROR Metrics: metrics channel: a line is lost, maybe more to come: "
            "Invalid or incomplete multibyte or wide character [own]\n"
            "WARNING Metrics: metrics channel: written to again, lines lost: 1 [own]\n");
}

TEST_F(VLoggerTest, ADiagnosticThatIsLostHurtsNobody) {
  Run([] {
    BreakStandardOutput();
    EXPECT_EQ(dup2(STDOUT_FILENO, STDERR_FILENO), STDERR_FILENO);
    LogAtLevel(1);
    Logger().Metrics("%s", "lost as well");
    LogAtLevel(1);
  });
  EXPECT_EQ(Error(), "");
}

TEST_F(VLoggerTest, MetricsGoToTheFileThatTheHostNames) {
  Run([this] {
    EXPECT_TRUE(VPlatformConfig::SetMetricsFile(path_));
    Logger().Metrics("%s", "text");
    LogAtLevel(1);
  });
  EXPECT_EQ(FileContent::Read(path_), "text\n");
  EXPECT_EQ(Output(), "");
  EXPECT_EQ(Diagnostics(), "ERROR Function: level 1 [file:7]\n");
}

TEST_F(VLoggerTest, DiagnosticsGoToTheFileThatTheHostNames) {
  Run([this] {
    EXPECT_TRUE(VPlatformConfig::SetDiagnosticsFile(path_));
    Logger().Metrics("%s", "text");
    LogAtLevel(1);
  });
  EXPECT_EQ(WithoutTimes(FileContent::Read(path_)), "ERROR Function: level 1 [file:7]\n");
  EXPECT_EQ(Output(), "text\n");
  EXPECT_EQ(Error(), "");
}

TEST_F(VLoggerTest, TheHostHearsWhyAFileIsRefused) {
  const NonRegularFiles files;
  Run([&] {
    const int errors[] = {EISDIR, ENXIO, ELOOP, ELOOP, ENXIO, EINVAL};
    for (std::size_t i = 0; i < std::size(errors); ++i) {
      EXPECT_FALSE(VPlatformConfig::SetMetricsFile(files.Names()[i]));
      EXPECT_EQ(errno, errors[i]) << files.Names()[i];
      EXPECT_FALSE(VPlatformConfig::SetDiagnosticsFile(files.Names()[i]));
      EXPECT_EQ(errno, errors[i]) << files.Names()[i];
    }
    Logger().Metrics("%s", "text");
    LogAtLevel(1);
  });
  EXPECT_EQ(Output(), "text\n");
  EXPECT_EQ(Diagnostics(), "ERROR Function: level 1 [file:7]\n");
  EXPECT_TRUE(files.TargetsUntouched());
}

/// Made before main, so its destructor is among the last of the process. It speaks where told to.
struct LastWord {
  ~LastWord() {
    if (due) {
      Logger().Metrics("%s", "last");
      LogAtLevel(2);
    }
  }
  bool due = false;
} lastWord;

TEST_F(VLoggerTest, WorksInTheLastDestructorOfAProcess) {
  EXPECT_EXIT(
      {
        Redirect(STDOUT_FILENO, output_);
        lastWord.due = true;
        std::exit(0);
      },
      testing::ExitedWithCode(0), "WARNING Function: level 2 \\[file:7\\]\n");
  EXPECT_EQ(Output(), "last\n");
}

}  // namespace
