#include "Privacy.h"

#include <optional>

#include "MetricLookup.h"

namespace vmetrics {

namespace {

bool IsOfPrivate(const MetricEntry* metric) { return metric != nullptr && IsPrivate(*metric); }

}  // namespace

void Privacy::AddTo(CLI::App& command, const std::string& what) {
  command.add_flag("--show-private", showsPrivate_, "Show " + what + ", masked otherwise");
}

bool Privacy::IsMasked(std::string_view eventId) const {
  if (showsPrivate_) {
    return false;
  }
  // A number is an event ID, too, if it is registered as one.
  const std::optional<int> id = NumericId(eventId);
  return (id && IsOfPrivate(FindNumericMetric(*id))) || IsOfPrivate(FindEventMetric(eventId));
}

}  // namespace vmetrics
