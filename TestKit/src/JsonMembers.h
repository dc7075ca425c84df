/// A look into the JSON lines that the library writes.
///
/// The component may put anything onto the metrics channel, so nothing is read that is not there;
/// but what is no JSON need not be noticed as such.
#ifndef TESTKIT_JSONMEMBERS_H_
#define TESTKIT_JSONMEMBERS_H_

#include <string>
#include <string_view>

#include "VMetricsTestKit.h"

namespace TestKit {

/// The members of the JSON object `text`, each value as it stands; none if it is no object.
Members MembersOf(std::string_view text);

/// The text that the JSON string `json` stands for; empty if it is none.
std::string TextOf(std::string_view json);

}  // namespace TestKit

#endif  // TESTKIT_JSONMEMBERS_H_
