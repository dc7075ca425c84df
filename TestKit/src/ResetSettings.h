/// How the platform's settings come to be as at the start.
#ifndef TESTKIT_RESETSETTINGS_H_
#define TESTKIT_RESETSETTINGS_H_

namespace TestKit {

/// Forgets what was set, and refuses nothing.
void ResetSettings();

}  // namespace TestKit

#endif  // TESTKIT_RESETSETTINGS_H_
