/// The bytes that a file holds or describes.
#ifndef VMETRICS_TOOL_BYTESOURCE_H_
#define VMETRICS_TOOL_BYTESOURCE_H_

#include <string>
#include <string_view>

#include "HexReader.h"
#include "Input.h"

namespace vmetrics {

class ByteSource {
 public:
  /// Opens the file `name`, which holds hexadecimal digits if `isHex`. Throws InputError.
  ByteSource(const std::string& name, bool isHex) : input_(name), isHex_(isHex) {}

  /// The next bytes, good until the next call; none at the end. Throws InputError: what came before
  /// is good.
  std::string_view Read();

  const Input& File() const { return input_; }

 private:
  Input input_;
  const bool isHex_;
  HexReader digits_;
  std::string bytes_;
  bool isBad_ = false;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_BYTESOURCE_H_
