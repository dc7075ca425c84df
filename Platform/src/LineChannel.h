/// A way out for whole lines: a standard stream of the process, or a file that processes share.
#ifndef PLATFORM_LINECHANNEL_H_
#define PLATFORM_LINECHANNEL_H_

#include <sys/stat.h>
#include <sys/types.h>

#include <atomic>
#include <climits>
#include <cstddef>
#include <string>

/// Writes each line with one system call, so that lines of several threads and processes do not mix
/// in a file. Into a pipe that holds up to PIPE_BUF (4,096 bytes); longer lines go in pieces.
///
/// It holds no lock, so a child that was forked while another thread wrote a line can go on; and it
/// needs neither constructor nor destructor at run time, so that it serves from the first to the
/// last moment of a process. Every function but OpenFile may run in several threads at once.
class LineChannel {
 public:
  constexpr explicit LineChannel(int standardStream) : descriptor_(standardStream) {}

  /// Goes to the file `path` from now on. False, with errno telling why, when it is refused: all
  /// stays as it was. To be called while no line is being written.
  bool OpenFile(const std::string& path);

  /// Writes `length` bytes of `text` and a line break. Allocates nothing.
  ///
  /// Returns 0, or the error number for which the line, or its rest, was given up. A part that went
  /// out stays behind as a fragment; the channel's next line begins with a line break then.
  int WriteLine(const char* text, std::size_t length);

 private:
  /// What a descriptor needs when something is written to it.
  enum class Kind {
    kFile,         ///< A regular file: a write neither blocks nor raises a signal.
    kLimitedFile,  ///< A regular file under a size limit, which raises SIGXFSZ.
    kStream,       ///< A pipe, socket, terminal or device: may block or raise SIGPIPE.
  };
  class Line;

  void Look();
  static Kind KindOfFile();
  void Classify();
  void FollowFile();
  bool IsOurs() const;
  bool Adopt(int opened, const struct stat& status);
  int Push(Line& line);
  int PushToFile(Line& line);
  int PushToStream(Line& line);
  long WriteToFile(const Line& line);

  std::atomic<int> descriptor_;
  std::atomic<Kind> kind_{Kind::kStream};
  std::atomic<long> nextLook_{0};        ///< On the coarse monotonic clock, in milliseconds.
  std::atomic<bool> endsInside_{false};  ///< What went out last did not end with a line break.
  std::atomic<dev_t> device_{0};         ///< With inode_: the file that we opened.
  std::atomic<ino_t> inode_{0};
  char path_[PATH_MAX] = {};  ///< Empty for a standard stream; absolute otherwise.
};

#endif  // PLATFORM_LINECHANNEL_H_
