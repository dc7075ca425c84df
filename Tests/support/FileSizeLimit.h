/// How long this process may make its files. For a child process: a limit spoils everybody's files.
#ifndef FILESIZELIMIT_H_
#define FILESIZELIMIT_H_

#include <sys/resource.h>

#include <stdexcept>

namespace FileSizeLimit {

inline void Set(rlim_t bytes) {
  rlimit limit;
  if (getrlimit(RLIMIT_FSIZE, &limit) != 0) {
    throw std::runtime_error("cannot ask for the file size limit");
  }
  limit.rlim_cur = bytes;  // The soft limit alone, which can be lifted again.
  if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
    throw std::runtime_error("cannot set the file size limit");
  }
}

inline void Lift() { Set(RLIM_INFINITY); }

}  // namespace FileSizeLimit

#endif  // FILESIZELIMIT_H_
