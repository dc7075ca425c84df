/// Memory functions that refuse what does not fit: see src/BoundsChecked.cpp.
#ifndef EXAMPLE_BOUNDSCHECKED_H_
#define EXAMPLE_BOUNDSCHECKED_H_

#include <cstddef>

extern "C" {

// Not 0 if a pointer is null, or if there are more bytes than room: the reporters find texts that
// are too long by it. A count of 0 succeeds, whatever the room.
int memcpy_s(void* destination, std::size_t destinationSize, const void* source, std::size_t count);
int memset_s(void* destination, std::size_t destinationSize, int value, std::size_t count);

/// As strtok_r.
char* strtok_s(char* string, const char* delimiters, char** context);
}

#endif  // EXAMPLE_BOUNDSCHECKED_H_
