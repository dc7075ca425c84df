#include "Input.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>

namespace vmetrics {

namespace {

/// Bytes a Read; large enough for zlib to put plain bytes there without a copy.
constexpr unsigned int kPiece = 1U << 18;

std::string Describe(int error) { return std::generic_category().message(error); }

int Open(const std::string& name) {
  return name == "-" ? fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)
                     : open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
}

}  // namespace

struct Input::Stream {
  explicit Stream(int descriptor) : file(gzdopen(descriptor, "rb")) {
    if (file == nullptr) {
      close(descriptor);
      throw std::bad_alloc();
    }
  }
  ~Stream() { gzclose(file); }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  gzFile file;
  std::array<char, kPiece> piece;
};

Input::Input(const std::string& name) : name_(name == "-" ? "standard input" : name) {
  const int descriptor = Open(name);
  struct stat status;
  if (descriptor < 0 || fstat(descriptor, &status) != 0) {
    throw InputError(name_ + ": " + Describe(errno));
  }
  if (S_ISREG(status.st_mode)) {
    size_ = static_cast<std::uint64_t>(status.st_size);
  }
  stream_ = std::make_unique<Stream>(descriptor);
}

Input::~Input() = default;

std::string_view Input::Read() {
  errno = 0;
  const int count = gzread(stream_->file, stream_->piece.data(), kPiece);
  if (count > 0) {
    return {stream_->piece.data(), static_cast<std::size_t>(count)};
  }
  int error = Z_OK;
  gzerror(stream_->file, &error);
  if (error == Z_OK || (error == Z_ERRNO && errno == 0)) {
    return {};
  }
  if (error == Z_ERRNO) {
    throw InputError(name_ + ": " + Describe(errno));
  }
  throw InputError(name_ + ": " +
                   (error == Z_BUF_ERROR ? "the compressed data ends too early"
                                         : "the compressed data is damaged"));
}

std::uint64_t Input::Position() const {
  const z_off_t position = gzoffset(stream_->file);
  return position < 0 ? 0 : static_cast<std::uint64_t>(position);
}

}  // namespace vmetrics
