/// A second process for a test: to change what belongs to a process, or to be in its way.
#ifndef CHILDPROCESS_H_
#define CHILDPROCESS_H_

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <string>

extern "C" void __gcov_dump() __attribute__((weak));  // There where coverage is measured.

/// Runs a function in a forked process. Its expectations count: where one fails, the process exits
/// with 1 instead of 0.
class ChildProcess {
 public:
  template <typename Body>
  explicit ChildProcess(Body body) {
    std::fflush(nullptr);
    id_ = fork();
    if (id_ < 0) {
      throw std::runtime_error("cannot fork");
    }
    if (id_ == 0) {
      alarm(kLongestLifeSeconds);
      [&]() noexcept { body(); }();  // No exception may carry the child on into other tests.
      std::fflush(nullptr);
      if (__gcov_dump != nullptr) {
        __gcov_dump();
      }
      _exit(testing::Test::HasFailure() ? 1 : 0);
    }
  }
  ~ChildProcess() {
    if (id_ > 0) {
      Kill(SIGKILL);
      Wait();
    }
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  void Kill(int signal) const { kill(id_, signal); }

  /// Stops it where it is, until Kill(SIGCONT); returns when it stands still.
  void Stop() const {
    Kill(SIGSTOP);
    int status = 0;
    while (waitpid(id_, &status, WUNTRACED) < 0 && errno == EINTR) {
    }
    if (!WIFSTOPPED(status)) {
      throw std::runtime_error("the child ended instead of stopping");
    }
  }

  /// Waits for its end and tells it: "exited with 0", "killed by signal 9".
  std::string Wait() {
    int status = 0;
    while (waitpid(id_, &status, 0) < 0 && errno == EINTR) {
    }
    id_ = 0;
    return WIFEXITED(status) ? "exited with " + std::to_string(WEXITSTATUS(status))
                             : "killed by signal " + std::to_string(WTERMSIG(status));
  }

  /// Runs `body` in a child from beginning to end.
  template <typename Body>
  static std::string Run(Body body) {
    return ChildProcess(body).Wait();
  }

 private:
  static constexpr unsigned kLongestLifeSeconds = 60;  // A child that hangs fails its test.

  pid_t id_ = 0;
};

/// Where one process waits for another.
class ChildGate {
 public:
  ChildGate() {
    if (pipe(ends_) != 0) {
      throw std::runtime_error("cannot make a pipe");
    }
  }
  ~ChildGate() {
    close(ends_[0]);
    close(ends_[1]);
  }
  ChildGate(const ChildGate&) = delete;
  ChildGate& operator=(const ChildGate&) = delete;

  /// Lets one waiter through.
  void Open() const {
    if (write(ends_[1], "", 1) != 1) {
      throw std::runtime_error("cannot open the gate");
    }
  }
  void Wait() const {
    pollfd request = {ends_[0], POLLIN, 0};
    char byte;
    if (poll(&request, 1, kPatienceMilliseconds) != 1 || read(ends_[0], &byte, 1) != 1) {
      throw std::runtime_error("nobody opens the gate");
    }
  }

 private:
  static constexpr int kPatienceMilliseconds = 60'000;

  int ends_[2];
};

#endif  // CHILDPROCESS_H_
