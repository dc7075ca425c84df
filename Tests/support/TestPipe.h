/// A pipe whose both ends a test holds.
#ifndef TESTPIPE_H_
#define TESTPIPE_H_

#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

class TestPipe {
 public:
  /// `flags` as for pipe2: O_NONBLOCK, or O_DIRECT for one where each write is a packet of its own.
  explicit TestPipe(int flags = 0) {
    if (pipe2(ends_, flags | O_CLOEXEC) != 0) {
      throw std::runtime_error("cannot make a pipe");
    }
  }
  ~TestPipe() {
    CloseReader();
    close(ends_[1]);
  }
  TestPipe(const TestPipe&) = delete;
  TestPipe& operator=(const TestPipe&) = delete;

  int Writer() const { return ends_[1]; }

  void CloseReader() {
    if (ends_[0] >= 0) {
      close(ends_[0]);
      ends_[0] = -1;
    }
  }

  /// Puts in dots until no more go in; returns how many there are.
  std::size_t Fill() const {
    const int flags = fcntl(ends_[1], F_GETFL);
    fcntl(ends_[1], F_SETFL, flags | O_NONBLOCK);
    std::size_t count = 0;
    const std::string dots(4096, '.');
    for (const std::size_t size : {dots.size(), std::size_t{1}}) {
      while (write(ends_[1], dots.data(), size) > 0) {
        count += size;
      }
    }
    fcntl(ends_[1], F_SETFL, flags);
    return count;
  }

  /// Waits for something to be in the pipe and takes it: a packet, or as much as there is.
  std::string Read() const {
    std::string text(std::size_t{1} << 16, '\0');
    const ssize_t count = read(ends_[0], text.data(), text.size());
    text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return text;
  }

  /// All that is in the pipe, maybe nothing.
  std::string Drain() const {
    fcntl(ends_[0], F_SETFL, fcntl(ends_[0], F_GETFL) | O_NONBLOCK);
    std::string text;
    for (std::string piece = Read(); !piece.empty(); piece = Read()) {
      text += piece;
    }
    fcntl(ends_[0], F_SETFL, fcntl(ends_[0], F_GETFL) & ~O_NONBLOCK);
    return text;
  }

 private:
  int ends_[2];
};

#endif  // TESTPIPE_H_
