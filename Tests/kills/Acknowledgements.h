/// How many lines each of several processes knows to be written.
#ifndef ACKNOWLEDGEMENTS_H_
#define ACKNOWLEDGEMENTS_H_

#include <sys/mman.h>

#include <atomic>
#include <cstddef>
#include <new>

/// One counter for each process, in memory that outlives them: forked children share it.
class Acknowledgements {
 public:
  explicit Acknowledgements(int processes)
      : size_(static_cast<std::size_t>(processes) * sizeof(std::atomic<int>)),
        // What the system hands out is zero.
        memory_(mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
    if (memory_ == MAP_FAILED) {
      throw std::bad_alloc();
    }
  }
  ~Acknowledgements() { munmap(memory_, size_); }
  Acknowledgements(const Acknowledgements&) = delete;
  Acknowledgements& operator=(const Acknowledgements&) = delete;

  std::atomic<int>& Of(int process) { return static_cast<std::atomic<int>*>(memory_)[process]; }

 private:
  static_assert(std::atomic<int>::is_always_lock_free, "no lock may be left behind by a kill");

  const std::size_t size_;
  void* const memory_;
};

#endif  // ACKNOWLEDGEMENTS_H_
