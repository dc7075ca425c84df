/// A pipe, socket or terminal, written to without ever waiting for its reader.
#ifndef PLATFORM_STREAM_H_
#define PLATFORM_STREAM_H_

#include <sys/types.h>

#include <cstddef>

#include "Deadline.h"

class Stream {
 public:
  /// Opens the stream anew for a moment, as the flag that keeps a write from waiting would
  /// otherwise be set for everybody who shares it. Not kept open: its reader must see the end when
  /// the host closes it.
  Stream(int descriptor, Deadline& deadline);
  ~Stream();
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  /// False when the deadline came before the stream could take anything.
  bool WaitWritable(Deadline& deadline) const;

  /// As write does.
  ssize_t Write(const void* data, std::size_t size) const;

 private:
  const int descriptor_;
  int own_;
};

#endif  // PLATFORM_STREAM_H_
