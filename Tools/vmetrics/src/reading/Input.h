/// A file or standard input as a sequence of bytes, unpacked if it is compressed by gzip.
#ifndef VMETRICS_TOOL_INPUT_H_
#define VMETRICS_TOOL_INPUT_H_

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vmetrics {

/// What could not be read and why, as one text: "old.log: No such file or directory".
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Input {
 public:
  /// Opens the file `name`; "-" is standard input, which stays open. Throws InputError.
  explicit Input(const std::string& name);
  ~Input();
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  /// The next bytes, good until the next call; none at the end. Throws InputError where the file
  /// cannot be read or its compressed content is damaged: what came before is good.
  std::string_view Read();

  /// The name as people read it.
  const std::string& Name() const { return name_; }

  /// Bytes of the file as it lies on the disk; 0 where that is unknown.
  std::uint64_t Size() const { return size_; }

  /// How many of them have been read.
  std::uint64_t Position() const;

 private:
  struct Stream;

  /// Whether the file is compressed.
  void FindContent();
  std::string_view ReadPlain();
  std::string_view ReadCompressed();
  /// Whether one more compressed file stands behind the one that has ended.
  bool FindNextCompressed();

  const std::string name_;
  std::unique_ptr<Stream> stream_;
  std::uint64_t size_ = 0;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_INPUT_H_
