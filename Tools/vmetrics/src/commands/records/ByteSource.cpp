#include "ByteSource.h"

namespace vmetrics {

std::string_view ByteSource::Read() {
  if (!isHex_) {
    return input_.Read();
  }
  bytes_.clear();
  while (bytes_.empty() && !isBad_) {
    const std::string_view text = input_.Read();
    if (text.empty()) {
      isBad_ = !digits_.Finish();
      break;
    }
    isBad_ = !digits_.Add(text, bytes_);
  }
  if (bytes_.empty() && isBad_) {
    throw InputError(input_.Name() + ":" + digits_.Fault());
  }
  return bytes_;
}

}  // namespace vmetrics
