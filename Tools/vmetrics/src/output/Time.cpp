#include "Time.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

namespace vmetrics {

std::string UtcTime(std::int64_t tick) {
  const std::tm time = fmt::gmtime(static_cast<std::time_t>(tick / 1000));
  return fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}", time, tick % 1000);
}

std::string HumanDuration(std::int64_t milliseconds) {
  if (milliseconds < 0) {
    return "-" + HumanDuration(-milliseconds);
  }
  if (milliseconds < 1000) {
    return fmt::format("{} ms", milliseconds);
  }
  // Rounded before the unit is chosen, so that no part comes out as 60.
  const std::int64_t hundredths = (milliseconds + 5) / 10;
  if (hundredths < 6000) {
    return fmt::format("{}.{:02} s", hundredths / 100, hundredths % 100);
  }
  const std::int64_t seconds = (milliseconds + 500) / 1000;
  if (seconds < 3600) {
    return fmt::format("{} min {:02} s", seconds / 60, seconds % 60);
  }
  const std::int64_t minutes = (milliseconds + 30000) / 60000;
  if (minutes < 24 * 60) {
    return fmt::format("{} h {:02} min", minutes / 60, minutes % 60);
  }
  const std::int64_t hours = (milliseconds + 1800000) / 3600000;
  return fmt::format("{} d {:02} h", hours / 24, hours % 24);
}

}  // namespace vmetrics
