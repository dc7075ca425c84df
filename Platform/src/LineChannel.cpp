#include "LineChannel.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "Deadline.h"
#include "SignalGuard.h"
#include "Stream.h"
#include "Uninterrupted.h"

namespace {

/// How often the channel looks whether its file was moved away or a size limit was set.
constexpr long kLookEveryMilliseconds = 500;
/// Lines up to this size are put together on the stack; longer ones are gathered by the kernel.
constexpr std::size_t kGatheredSize = 4096;

/// Opens a file for appending, refusing whatever is not a regular file; -1 with errno on failure.
/// `status` becomes the file's.
int OpenRegular(const char* path, struct stat& status) {
  // Not blocking: a FIFO by that name would hold us until somebody opened its other end.
  const int descriptor = Uninterrupted([path] {
    return open(
        path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600);
  });
  if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
    close(descriptor);
    errno = EINVAL;
    return -1;
  }
  return descriptor;
}

}  // namespace

/// What is left to write of one line.
class LineChannel::Line {
 public:
  /// `breakFirst` puts a line break in front, to leave a fragment behind. A short line is copied
  /// together, as one contiguous write is the fastest; a long one stays where it is.
  Line(bool breakFirst, const char* text, std::size_t length)
      : left_(length + (breakFirst ? 2 : 1)) {
    if (left_ <= sizeof gathered_) {
      char* end = gathered_;
      if (breakFirst) {
        *end++ = '\n';
      }
      std::memcpy(end, text, length);
      end[length] = '\n';
      parts_[0] = {gathered_, left_};
      parts_[1] = parts_[2] = {nullptr, 0};
    } else {
      parts_[0] = {&lineBreak_, breakFirst ? std::size_t{1} : 0};
      parts_[1] = {const_cast<char*>(text), length};  // The kernel only reads it.
      parts_[2] = {&lineBreak_, 1};
    }
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  std::size_t Left() const { return left_; }

  /// Hands all that is left to one system call.
  ssize_t WriteTo(int descriptor) const {
    const bool contiguous = parts_[0].iov_len == left_;
    return contiguous ? write(descriptor, parts_[0].iov_base, left_)
                      : writev(descriptor, parts_, 3);
  }

  /// Hands over no more than fits into a pipe at once.
  ssize_t WritePieceTo(const Stream& stream) const {
    const iovec* part = parts_;
    while (part->iov_len == 0) {
      ++part;
    }
    return stream.Write(part->iov_base, std::min<std::size_t>(part->iov_len, PIPE_BUF));
  }

  void Advance(std::size_t count) {
    left_ -= count;
    for (iovec& part : parts_) {
      const std::size_t taken = std::min(part.iov_len, count);
      part.iov_base = static_cast<char*>(part.iov_base) + taken;
      part.iov_len -= taken;
      count -= taken;
    }
  }

 private:
  std::size_t left_;
  iovec parts_[3];
  char lineBreak_ = '\n';
  char gathered_[kGatheredSize];
};

bool LineChannel::OpenFile(const std::string& path) {
  std::error_code error;
  const std::string absolute = std::filesystem::absolute(path, error).string();
  if (path.empty() || error || absolute.size() >= sizeof path_) {
    errno = path.empty() ? ENOENT : error ? error.value() : ENAMETOOLONG;
    return false;
  }
  struct stat status;
  const int opened = OpenRegular(absolute.c_str(), status);
  if (opened < 0 || !Adopt(opened, status)) {
    return false;
  }
  std::memcpy(path_, absolute.c_str(), absolute.size() + 1);
  return true;
}

/// Makes `opened` the channel's file. A descriptor that is ours keeps its number, so that a thread
/// in the middle of a line writes to the old file or to the new one, and never to a closed one.
bool LineChannel::Adopt(int opened, const struct stat& status) {
  // Numbers below 3 belong to the standard streams, even where the host has closed them.
  const int adopted = path_[0] != '\0' && IsOurs() ? dup3(opened, descriptor_, O_CLOEXEC)
                                                   : fcntl(opened, F_DUPFD_CLOEXEC, 3);
  const int error = errno;
  close(opened);
  errno = error;
  if (adopted < 0) {
    return false;
  }
  device_ = status.st_dev;
  inode_ = status.st_ino;
  descriptor_ = adopted;
  endsInside_ = false;
  kind_ = KindOfFile();
  return true;
}

/// Whether the descriptor still is the file that we opened. In a host that closes descriptors it
/// does not know, the number may have become something of the host's own. Where the system does not
/// say, it has not: giving up a descriptor that is open would leak it.
bool LineChannel::IsOurs() const {
  struct stat status;
  return fstat(descriptor_, &status) == 0 ? status.st_dev == device_ && status.st_ino == inode_
                                          : errno != EBADF;
}

/// Opens the file anew if it no longer stands under its name. Where that fails, lines go on to the
/// old file; if that is lost too, to nowhere rather than into a file of the host's.
void LineChannel::FollowFile() {
  struct stat status;
  const bool ours = IsOurs();
  const bool inPlace =
      ours && lstat(path_, &status) == 0 && status.st_dev == device_ && status.st_ino == inode_;
  if (inPlace) {
    return;
  }
  const int opened = OpenRegular(path_, status);
  if ((opened < 0 || !Adopt(opened, status)) && !ours) {
    descriptor_ = -1;
  }
}

LineChannel::Kind LineChannel::KindOfFile() {
  return HasFileSizeLimit() ? Kind::kLimitedFile : Kind::kFile;
}

/// Where there is no descriptor any more a write fails at once, as it does for a file. Where the
/// system does not say what there is, it stays what it was.
void LineChannel::Classify() {
  struct stat status;
  if (fstat(descriptor_, &status) == 0) {
    kind_ = S_ISREG(status.st_mode) ? KindOfFile() : Kind::kStream;
  } else if (errno == EBADF) {
    kind_ = Kind::kFile;
  }
}

/// Sees to what may have changed around the channel: for a file of ours seldom enough to cost the
/// common line nothing, but for a standard stream each time, as the host may redirect it any time.
void LineChannel::Look() {
  if (path_[0] == '\0') {
    Classify();
    return;
  }
  const long now = Deadline::Milliseconds(CLOCK_MONOTONIC_COARSE);
  long due = nextLook_.load(std::memory_order_relaxed);
  if (now >= due && nextLook_.compare_exchange_strong(due, now + kLookEveryMilliseconds)) {
    FollowFile();
    Classify();
  }
}

// In one frame with what it calls: after a system call each return is dear, too.
[[gnu::flatten]] int LineChannel::WriteLine(const char* text, std::size_t length) {
  Look();
  const bool breakFirst =
      endsInside_.load(std::memory_order_relaxed) && endsInside_.exchange(false);
  Line line(breakFirst, text, length);
  const std::size_t whole = line.Left();
  const int error = Push(line);
  if (error != 0) {
    const std::size_t written = whole - line.Left();
    if (written == 0 ? breakFirst : !(breakFirst && written == 1)) {
      endsInside_ = true;  // Never taken back here: another thread may have left a fragment too.
    }
    nextLook_ = 0;  // The next line looks whether what stands in the way is gone.
  }
  return error;
}

/// Returns 0 once the line is out, otherwise the error number that ended it.
int LineChannel::Push(Line& line) {
  return kind_ == Kind::kStream ? PushToStream(line) : PushToFile(line);
}

int LineChannel::PushToFile(Line& line) {
  Deadline deadline(kLongestWaitMilliseconds);
  while (line.Left() > 0) {
    const ssize_t written = WriteToFile(line);
    if (written == static_cast<ssize_t>(line.Left())) {
      return 0;
    }
    if (written > 0) {
      line.Advance(static_cast<std::size_t>(written));
      Classify();  // A file that takes only a part may have met a limit set since we looked.
    } else if (written == 0 || errno != EINTR || deadline.Passed()) {
      return written == 0 ? EIO : errno;
    }
  }
  return 0;
}

long LineChannel::WriteToFile(const Line& line) {
  if (kind_ != Kind::kLimitedFile) {
    return line.WriteTo(descriptor_);
  }
  SignalGuard guard;
  const ssize_t written = line.WriteTo(descriptor_);
  if (written < 0) {
    guard.Discard();
  }
  return written;
}

int LineChannel::PushToStream(Line& line) {
  Deadline deadline(kLongestWaitMilliseconds);
  const Stream stream(descriptor_, deadline);
  while (line.Left() > 0) {
    if (!stream.WaitWritable(deadline)) {
      return EAGAIN;
    }
    SignalGuard guard;
    const ssize_t written = line.WritePieceTo(stream);
    if (written > 0) {
      line.Advance(static_cast<std::size_t>(written));
      continue;
    }
    guard.Discard();
    const bool passing = written < 0 && (errno == EINTR || errno == EAGAIN);
    if (!passing || deadline.Passed()) {
      return written == 0 ? EIO : errno;
    }
  }
  return 0;
}
