/// Measuring what appends a line to a file.
#ifndef BENCHMARKS_LINEFILES_H_
#define BENCHMARKS_LINEFILES_H_

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <string>

#include "FileContent.h"
#include "SameText.h"
#include "ScratchFiles.h"

inline constexpr char kOurLines[] = "ours.log";
inline constexpr char kHandLines[] = "hand.log";

/// Appends a line to kHandLines as hand-written code would; false when it did not go out.
inline bool WriteByHand(const std::string& line) {
  static const int descriptor = ScratchFiles::Get().OpenForAppending(kHandLines);
  return write(descriptor, line.data(), line.size()) == static_cast<ssize_t>(line.size());
}

/// What `calls` appends to a file, which is empty before and afterwards.
template <typename Calls>
std::string Appended(const char* name, Calls calls) {
  ScratchFiles::Get().Empty(name);
  calls();
  std::string text = FileContent::Read(ScratchFiles::Get().Path(name));
  ScratchFiles::Get().Empty(name);
  return text;
}

/// The second of two lines: a first step has no parent.
template <bool (*Emit)()>
std::string SecondLine(const char* name) {
  const std::string lines = Appended(name, [] { Emit() && Emit(); });
  return lines.substr(lines.find('\n') + 1);
}

/// Measures `Emit`, which appends a line to `name` in each call, the same as `Ours` to kOurLines.
template <bool (*Emit)(), bool (*Ours)()>
void MeasureLines(benchmark::State& state, const char* name) {
  if (!ExpectSameText(state, SecondLine<Emit>(name), SecondLine<Ours>(kOurLines))) {
    return;
  }
  const std::string lines = Appended(name, [&] {
    for (auto iteration : state) {
      if (!Emit()) {
        state.SkipWithError("a call failed");
        break;
      }
    }
  });
  if (std::count(lines.begin(), lines.end(), '\n') != state.iterations()) {
    state.SkipWithError("not one line a call");
  }
}

#endif  // BENCHMARKS_LINEFILES_H_
