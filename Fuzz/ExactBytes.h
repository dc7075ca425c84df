/// Bytes at any alignment, behind which the address sanitizer finds every read.
#ifndef FUZZ_EXACTBYTES_H_
#define FUZZ_EXACTBYTES_H_

#include <cstddef>
#include <memory>
#include <string_view>

class ExactBytes {
 public:
  /// `offset`: how far from an aligned address.
  ExactBytes(std::string_view bytes, std::size_t offset)
      : memory_(new char[offset + bytes.size()]), begin_(memory_.get() + offset) {
    bytes.copy(begin_, bytes.size());
  }

  char* Data() { return begin_; }

  template <typename Record>
  Record* As() {
    static_assert(alignof(Record) == 1, "records stand at any address");
    return reinterpret_cast<Record*>(begin_);
  }

 private:
  std::unique_ptr<char[]> memory_;
  char* begin_;
};

#endif  // FUZZ_EXACTBYTES_H_
