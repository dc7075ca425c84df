#include "Input.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>

namespace vmetrics {

namespace {

constexpr std::size_t kPiece = 1U << 18;

/// The two bytes that a file compressed by gzip begins with.
constexpr std::string_view kGzip = "\x1F\x8B";

std::string Describe(int error) { return std::generic_category().message(error); }

int Open(const std::string& name) {
  return name == "-" ? fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)
                     : open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
}

}  // namespace

/// The bytes on the disk, and how far they are unpacked.
struct Input::Stream {
  /// Owns the descriptor from the beginning.
  explicit Stream(int fileDescriptor) : descriptor(fileDescriptor) {
    // 16 stands for the wrapping of gzip.
    if (inflateInit2(&inflater, MAX_WBITS + 16) != Z_OK) {
      close(descriptor);
      throw std::bad_alloc();
    }
  }
  ~Stream() {
    inflateEnd(&inflater);
    close(descriptor);
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  std::string_view Packed() const {
    return {reinterpret_cast<const char*>(inflater.next_in), inflater.avail_in};
  }
  void Skip(std::size_t count) {
    inflater.next_in += count;
    inflater.avail_in -= static_cast<unsigned int>(count);
  }

  /// Reads more behind what is left. Returns false at the end; throws std::system_error.
  bool Fill();

  enum class Content { kUnknown, kPlain, kCompressed, kBetweenCompressed };

  const int descriptor;
  Content content = Content::kUnknown;
  std::uint64_t position = 0;  ///< In the file, behind all that was read.
  z_stream inflater{};
  std::array<char, kPiece> packed;
  std::array<char, kPiece> piece;
};

bool Input::Stream::Fill() {
  const std::size_t left = Packed().size();
  std::copy_n(Packed().data(), left, packed.data());
  ssize_t count;
  do {
    count = read(descriptor, packed.data() + left, packed.size() - left);
  } while (count < 0 && errno == EINTR);
  if (count < 0) {
    throw std::system_error(errno, std::generic_category());
  }
  position += static_cast<std::uint64_t>(count);
  inflater.next_in = reinterpret_cast<Bytef*>(packed.data());
  inflater.avail_in = static_cast<unsigned int>(left + static_cast<std::size_t>(count));
  return count > 0;
}

Input::Input(const std::string& name)
    : name_(name == "-"    ? "standard input"
            : name.empty() ? "\"\""
                           : name) {
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
  try {
    if (stream_->content == Stream::Content::kUnknown) {
      FindContent();
    }
    return stream_->content == Stream::Content::kPlain ? ReadPlain() : ReadCompressed();
  } catch (const std::system_error& error) {
    throw InputError(name_ + ": " + Describe(error.code().value()));
  }
}

void Input::FindContent() {
  Stream& stream = *stream_;
  while (stream.Packed().size() < kGzip.size() && stream.Fill()) {
  }
  stream.content = stream.Packed().substr(0, kGzip.size()) == kGzip ? Stream::Content::kCompressed
                                                                    : Stream::Content::kPlain;
}

std::string_view Input::ReadPlain() {
  Stream& stream = *stream_;
  if (stream.Packed().empty()) {
    stream.Fill();
  }
  const std::string_view plain = stream.Packed();
  stream.Skip(plain.size());
  return plain;
}

std::string_view Input::ReadCompressed() {
  Stream& stream = *stream_;
  stream.inflater.next_out = reinterpret_cast<Bytef*>(stream.piece.data());
  stream.inflater.avail_out = kPiece;
  while (stream.inflater.avail_out == kPiece) {
    if (stream.content == Stream::Content::kBetweenCompressed && !FindNextCompressed()) {
      return {};
    }
    if (stream.Packed().empty() && !stream.Fill()) {
      throw InputError(name_ + ": the compressed data ends too early");
    }
    const int result = inflate(&stream.inflater, Z_NO_FLUSH);
    if (result == Z_STREAM_END) {
      stream.content = Stream::Content::kBetweenCompressed;
    } else if (result != Z_OK && result != Z_BUF_ERROR && stream.inflater.avail_out == kPiece) {
      // Otherwise what came before is given first, and the next call comes here again.
      throw InputError(name_ + ": the compressed data is damaged");
    }
  }
  return {stream.piece.data(), kPiece - stream.inflater.avail_out};
}

bool Input::FindNextCompressed() {
  Stream& stream = *stream_;
  while (stream.Packed().size() < kGzip.size() && stream.Fill()) {
  }
  if (stream.Packed().empty()) {
    return false;
  }
  if (stream.Packed().substr(0, kGzip.size()) != kGzip) {
    throw InputError(name_ + ": behind the compressed data, at byte " + std::to_string(Position()) +
                     ", is something else, which is not read");
  }
  stream.content = Stream::Content::kCompressed;
  inflateReset(&stream.inflater);
  return true;
}

std::uint64_t Input::Position() const { return stream_->position - stream_->Packed().size(); }

}  // namespace vmetrics
