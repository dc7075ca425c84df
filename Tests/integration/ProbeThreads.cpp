#include "ProbeThreads.h"

#include <spawn.h>
#include <unistd.h>

#include <atomic>
#include <future>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "BoundedWait.h"
#include "ProbeCalls.h"
#include "VMetrics.h"

namespace {

/// A rendered text without its tick, the one thing in it that changes.
std::string WithoutTick(std::string text) {
  const std::string key = "\"timestamp\":";
  const std::size_t begin = text.find(key);
  if (begin != std::string::npos) {
    text.erase(begin, text.find(',', begin) - begin);
  }
  return text;
}

std::vector<std::string> RenderedWithoutTicks() {
  std::vector<std::string> texts = RenderEverything();
  for (std::string& text : texts) {
    text = WithoutTick(std::move(text));
  }
  return texts;
}

/// What one thread of CallFromThreads does, and what it has to say in the end.
class Worker {
 public:
  Worker(int index, std::mutex& tracing, const std::vector<std::string>& expected)
      : index_(index), tracing_(tracing), expected_(expected) {}

  /// One of the threads makes the table of transactions, the others are refused before it.
  void TraceFirst() {
    const int result = index_ == 0 ? VMetrics::InsertRecord(0, "first", "e", "s", "", 0)
                                   : VMetrics::InsertRecord(0, "first", "e", "s", nullptr, 0);
    Check(result == (index_ == 0 ? VMETRICS_OK : VMETRICS_INVALID), "first event");
  }

  void DoRound(int round) {
    identifiers_.push_back(VMetrics::GenerateUuid());
    const std::size_t length = VMetrics::GetCurrentParentSpanId().size();
    Check(length == 36 || length == 0, "parent");
    if (round % 25 == 0) {
      Check(RenderedWithoutTicks() == expected_, "rendering");
      Check(ReportEverything().empty(), "reports");
      const std::lock_guard<std::mutex> lock(tracing_);
      Check(TraceStep("thread " + std::to_string(index_), "s"), "step");
    }
  }

  void SayAll() const {
    for (const std::string& identifier : identifiers_) {
      Say("identifier", identifier);
    }
    for (const std::string& wrong : wrong_) {
      Say("wrong", wrong);
    }
  }

 private:
  void Check(bool right, const char* what) {
    if (!right) {
      wrong_.push_back(what);
    }
  }

  int index_;
  std::mutex& tracing_;
  const std::vector<std::string>& expected_;
  std::vector<std::string> identifiers_;
  std::vector<std::string> wrong_;
};

/// Threads that call what may be called beside a step, while the object lives.
class BusyThreads {
 public:
  BusyThreads() {
    for (int i = 0; i < 3; ++i) {
      running_.emplace_back([this] {
        while (!stop_) {
          RenderEverything();
          ReportEverything();
          VMetrics::GetCurrentParentSpanId();
        }
      });
    }
  }
  ~BusyThreads() {
    stop_ = true;
    for (std::thread& thread : running_) {
      thread.join();
    }
  }
  BusyThreads(const BusyThreads&) = delete;
  BusyThreads& operator=(const BusyThreads&) = delete;

 private:
  std::atomic<bool> stop_{false};
  std::vector<std::thread> running_;
};

constexpr int kPatienceMilliseconds = 20'000;

/// Whether a probe that says its descriptors came to its end.
bool DescriptorsSaid() {
  char* const arguments[] = {const_cast<char*>("probe"), const_cast<char*>("descriptors"), nullptr};
  pid_t child = 0;
  return posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, arguments, environ) == 0 &&
         WaitFor(child, kPatienceMilliseconds) == 0;
}

}  // namespace

void CallFromThreads(int threads, int rounds) {
  std::mutex tracing;
  const std::vector<std::string> expected = RenderedWithoutTicks();
  std::promise<void> gate;
  const std::shared_future<void> go = gate.get_future().share();
  std::vector<Worker> workers;
  for (int i = 0; i < threads; ++i) {
    workers.emplace_back(i, tracing, expected);
  }
  std::vector<std::thread> running;
  for (Worker& worker : workers) {
    running.emplace_back([&worker, go] {
      go.wait();
      worker.TraceFirst();
    });
  }
  gate.set_value();
  for (std::thread& thread : running) {
    thread.join();
  }
  running.clear();
  for (Worker& worker : workers) {
    running.emplace_back([&worker, rounds] {
      for (int round = 0; round < rounds; ++round) {
        worker.DoRound(round);
      }
    });
  }
  for (std::thread& thread : running) {
    thread.join();
  }
  for (const Worker& worker : workers) {
    worker.SayAll();
  }
}

void ForkAmongThreads(int children) {
  VMetrics::GenerateUuid();  // What this leaves behind, the children would inherit.
  const BusyThreads busyThreads;
  int ended = 0;
  for (int i = 0; i < children; ++i) {
    const pid_t child = fork();
    if (child == 0) {
      CallEverything("child");
      _exit(0);
    }
    if (!TraceStep("parent", "s")) {
      Say("failed", "parent's step");
    }
    ended += WaitFor(child, kPatienceMilliseconds) == 0 ? 1 : 0;
  }
  Say("children", std::to_string(ended));
}

void ExecAmongThreads(int programs) {
  const BusyThreads busyThreads;
  for (int i = 0; i < programs; ++i) {
    if (!TraceStep("parent", "s") || !DescriptorsSaid()) {
      Say("failed", "program");
    }
  }
}
