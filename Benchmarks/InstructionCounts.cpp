// Calls one operation a number of times, for callgrind: only those calls are collected, neither the
// start of the program nor the first calls, which make what is kept.
//
// usage: instruction_counts                  prints the toolchain, then the operations' names
//        instruction_counts OPERATION CALLS

#include <gnu/libc-version.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Operations.h"
#include "ScratchFiles.h"

namespace {

#ifdef __clang__
constexpr char kCompiler[] = "clang++ ";
#else
constexpr char kCompiler[] = "g++ ";
#endif
#ifdef __aarch64__
constexpr char kProcessor[] = "aarch64";
#else
constexpr char kProcessor[] = "x86-64";
#endif

constexpr int kFirstCalls = 3;

int List() {
  std::printf("%s%s, glibc %s, %s\n", kCompiler, __VERSION__, gnu_get_libc_version(), kProcessor);
  for (const Operation& operation : Operations()) {
    std::printf("%s\n", operation.name);
  }
  return 0;
}

bool Call(const Operation& operation, int calls) {
  bool succeeded = true;
  for (int call = 0; call < calls; ++call) {
    succeeded = operation.call() && succeeded;
  }
  return succeeded;
}

/// Returns what the program exits with.
int Count(const Operation& operation, int calls) {
  bool succeeded = Call(operation, kFirstCalls);
  CALLGRIND_TOGGLE_COLLECT;
  succeeded = Call(operation, calls) && succeeded;
  CALLGRIND_TOGGLE_COLLECT;
  if (!succeeded) {
    std::fprintf(stderr, "a call failed: %s\n", operation.name);
  }
  return succeeded ? 0 : 1;
}

int Count(const char* name, int calls) {
  for (const Operation& operation : Operations()) {
    if (std::strcmp(operation.name, name) == 0) {
      return Count(operation, calls);
    }
  }
  std::fprintf(stderr, "no such operation: %s\n", name);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    return List();
  }
  const int calls = std::atoi(argv[2]);
  if (!PrepareOperations(ScratchFiles::Get().Path(""), kFirstCalls + calls)) {
    std::perror("scratch files");
    return 2;
  }
  return Count(argv[1], calls);
}
