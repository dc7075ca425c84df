// A host that loads and unloads the library again and again.

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "AllocationRecord.h"
#include "DescriptorTable.h"
#include "TemporaryDirectory.h"

namespace {

/// Sends standard output, where the metrics go, to nowhere.
class NoOutput {
 public:
  NoOutput() : kept_(dup(STDOUT_FILENO)) {
    std::fflush(stdout);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    close(nowhere);
  }
  ~NoOutput() {
    dup2(kept_, STDOUT_FILENO);
    close(kept_);
  }
  NoOutput(const NoOutput&) = delete;
  NoOutput& operator=(const NoOutput&) = delete;

 private:
  const int kept_;
};

/// What a process holds on to.
struct Holdings {
  std::size_t heapBytes;
  int mappings;  ///< Of files, libraries above all.
  long descriptors;
};

Holdings Now() {
  std::ifstream maps("/proc/self/maps");
  int mappings = 0;
  for (std::string line; std::getline(maps, line);) {
    mappings += line.find('/') != std::string::npos ? 1 : 0;
  }
  maps.close();
  return {mallinfo2().uordblks, mappings, DescriptorTable::Count()};
}

class UnloadTest : public testing::Test {
 protected:
  /// Loads, uses and unloads the library `times` times; returns what was not as it should be.
  static std::string Cycle(int times, const char* metrics) {
    const NoOutput noOutput;
    for (int i = 0; i < times; ++i) {
      AllocationRecord::Begin();
      const char* const wrong = LoadAndUnload(metrics);
      if (wrong != nullptr) {
        return wrong + std::string(" at time ") + std::to_string(i);
      }
    }
    return "";
  }

  static const char* LoadAndUnload(const char* metrics) {
    void* const library = dlopen(VMETRICS_USER_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
      return dlerror();
    }
    const bool used =
        reinterpret_cast<bool (*)(const char*)>(dlsym(library, "UseLibrary"))(metrics);
    dlclose(library);
    return !used                                                         ? "a call failed"
           : dlopen(VMETRICS_LIBRARY, RTLD_NOW | RTLD_NOLOAD) != nullptr ? "it is still there"
           : AllocationRecord::Balance() != 0                            ? "a block is kept"
                                                                         : nullptr;
  }

  void ExpectNothingKept(const char* metrics) {
    constexpr int kTimes = 1'000;
    ASSERT_EQ(chdir(directory_.Path().c_str()), 0);  // Where the span file lies.
    ASSERT_EQ(Cycle(10, metrics), "");               // What the loader itself keeps, it has then.
    const Holdings before = Now();
    EXPECT_EQ(Cycle(kTimes, metrics), "");
    const Holdings after = Now();
    EXPECT_EQ(after.mappings, before.mappings);
    EXPECT_EQ(after.descriptors, before.descriptors);
    // The C library counts a few kilobytes more or less, but has no block smaller than 32 bytes.
    EXPECT_LT(after.heapBytes, before.heapBytes + 16 * kTimes);
    ASSERT_EQ(chdir("/"), 0);
  }

  const TemporaryDirectory directory_;
};

TEST_F(UnloadTest, NothingIsKeptAfterAThousandTimes) { ExpectNothingKept(nullptr); }

TEST_F(UnloadTest, MetricsFileIsOpenNoMoreThanOnce) {
  ExpectNothingKept((directory_ / "metrics").c_str());
}

}  // namespace
