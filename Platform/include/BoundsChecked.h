/// \file
/// Memory and string functions that refuse what does not fit, after Annex K of the C standard.
///
/// Each is safe to call from any thread; none allocates.
#ifndef BOUNDSCHECKED_H_
#define BOUNDSCHECKED_H_

#include <cstddef>

extern "C" {

/// Copies `count` bytes from `source` to `destination`, which has room for `destinationSize`.
///
/// Returns 0 when the bytes were copied; a `count` of 0 copies nothing and succeeds, also with a
/// `destinationSize` of 0. Returns non-zero and copies nothing when either pointer is null, when
/// `count` exceeds `destinationSize`, when either exceeds half the address space (a negative number
/// that became unsigned), or when the two areas overlap; where `destination` and
/// `destinationSize` can be trusted, the destination is then filled with zeros, so that nobody
/// reads what was there before.
int memcpy_s(void* destination, std::size_t destinationSize, const void* source, std::size_t count);

/// Sets the first `count` bytes of `destination`, which has room for `destinationSize`, to `value`.
///
/// Returns 0 on success, a `count` of 0 included. Returns non-zero when `destination` is null or
/// either size exceeds half the address space, and sets nothing; also when `count` exceeds
/// `destinationSize`, and then sets all of the destination.
int memset_s(void* destination, std::size_t destinationSize, int value, std::size_t count);

/// Splits `string` at any of the characters in `delimiters`, one token a call.
///
/// The first call passes the text, the following ones null; `*context` keeps the place between
/// calls. Leading delimiters are skipped and a run of them counts as one, so no token is empty. The
/// delimiter that ends a token is overwritten with a NUL: the text must be writable. Returns the
/// token, a pointer into the text, or null when none is left or an argument is missing.
char* strtok_s(char* string, const char* delimiters, char** context);

}  // extern "C"

#endif  // BOUNDSCHECKED_H_
