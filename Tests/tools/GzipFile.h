/// Files compressed by gzip.
#ifndef GZIPFILE_H_
#define GZIPFILE_H_

#include <zlib.h>

#include <stdexcept>
#include <string>

namespace GzipFile {

/// Writes `content` to the file, as a member of its own behind what may be there.
inline void Append(const std::string& path, const std::string& content) {
  const gzFile file = gzopen(path.c_str(), "ab");
  if (file == nullptr) {
    throw std::runtime_error("cannot open " + path);
  }
  const auto written = gzwrite(file, content.data(), static_cast<unsigned int>(content.size()));
  if (gzclose(file) != Z_OK || written != static_cast<int>(content.size())) {
    throw std::runtime_error("cannot write " + path);
  }
}

}  // namespace GzipFile

#endif  // GZIPFILE_H_
