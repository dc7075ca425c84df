/// What this program and the libraries that it loads take from the heap through operator new, and
/// when they give it back.
#ifndef ALLOCATIONRECORD_H_
#define ALLOCATIONRECORD_H_

#include <cstddef>

namespace AllocationRecord {

/// A moment: how often the heap was used before it.
using Moment = std::size_t;

/// Begins anew. Only what comes from here on is recorded.
void Begin();

Moment Now();

/// When the block that `address` lies in was taken, the last time; Now() if it never was.
Moment TakenAt(const void* address);

/// When the block that was taken at `taken` was given back; Now() if it never was.
Moment GivenBackAt(Moment taken);

/// How many more blocks were taken than given back since the beginning.
long Balance();

}  // namespace AllocationRecord

#endif  // ALLOCATIONRECORD_H_
