#include "Progress.h"

#include <fmt/core.h>
#include <unistd.h>

#include <cstdint>

#include "Terminal.h"
#include "Text.h"

namespace vmetrics {

Progress::Progress()
    : isTerminal_(isatty(STDERR_FILENO) == 1), next_(Clock::now() + std::chrono::seconds(1)) {}

void Progress::Show(const Input& input) {
  if (!isTerminal_ || Clock::now() < next_) {
    return;
  }
  next_ = Clock::now() + std::chrono::milliseconds(200);
  constexpr std::uint64_t kMegabyte = 1000000;
  const std::uint64_t megabytes = input.Position() / kMegabyte;
  const std::string name = Fitted(Printable(input.Name()), 40);
  if (input.Size() > 0) {
    ShowPassingLine(fmt::format("{} {:3} % of {} MB", name, input.Position() * 100 / input.Size(),
                                input.Size() / kMegabyte));
  } else {
    ShowPassingLine(fmt::format("{} {} MB", name, megabytes));
  }
}

}  // namespace vmetrics
