#include "Progress.h"

#include <fmt/core.h>
#include <unistd.h>

#include <cstdint>

#include "Terminal.h"
#include "Text.h"

namespace vmetrics {

Progress::Progress(Clock::time_point (*now)())
    : now_(now), isTerminal_(isatty(STDERR_FILENO) == 1), next_(now() + std::chrono::seconds(1)) {}

void Progress::Show(const Input& input) {
  if (!isTerminal_ || now_() < next_) {
    return;
  }
  next_ = now_() + std::chrono::milliseconds(200);
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
