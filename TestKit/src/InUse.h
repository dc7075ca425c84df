/// Whether the library calls the kit's platform. If not, nothing is ever recorded, and checks that
/// want nothing to be there would be content for the wrong reason.
#ifndef TESTKIT_INUSE_H_
#define TESTKIT_INUSE_H_

#include <string>

namespace TestKit {

/// Tries it out: the faked clock is read, nothing else comes of it.
void SeeWhetherInUse();

/// What to tell of a kit that is not in use, as was last seen; empty if it is.
std::string NotInUse();

}  // namespace TestKit

#endif  // TESTKIT_INUSE_H_
