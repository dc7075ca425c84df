/// Bytes behind which nothing can be read.
#ifndef GUARDEDBYTES_H_
#define GUARDEDBYTES_H_

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <string>

/// A copy of `bytes` that ends right before an unreadable page: a read beyond is a crash. How the
/// copy is aligned follows from its length.
class GuardedBytes {
 public:
  explicit GuardedBytes(const std::string& bytes) : readable_(ReadableSize(bytes.size())) {
    map_ = mmap(nullptr, readable_ + PageSize(), PROT_READ | PROT_WRITE,
                MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (map_ == MAP_FAILED || mprotect(End(), PageSize(), PROT_NONE) != 0) {
      throw std::bad_alloc();
    }
    data_ = End() - bytes.size();
    std::memcpy(data_, bytes.data(), bytes.size());
  }

  ~GuardedBytes() { munmap(map_, readable_ + PageSize()); }
  GuardedBytes(const GuardedBytes&) = delete;
  GuardedBytes& operator=(const GuardedBytes&) = delete;

  const char* Data() const { return data_; }

  /// The bytes as a packed record.
  template <typename Record>
  Record* As() const {
    static_assert(alignof(Record) == 1, "the bytes may stand at any address");
    return reinterpret_cast<Record*>(data_);
  }

 private:
  static std::size_t PageSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

  static std::size_t ReadableSize(std::size_t size) { return (size / PageSize() + 1) * PageSize(); }

  char* End() const { return static_cast<char*>(map_) + readable_; }

  const std::size_t readable_;
  void* map_;
  char* data_;
};

#endif  // GUARDEDBYTES_H_
