/// Rendering of a metric's value, inside the library.
#ifndef VMETRICS_VMETRICS_VALUERENDERING_H_
#define VMETRICS_VMETRICS_VALUERENDERING_H_

#include "VJson.h"
#include "VMetrics.h"

namespace vmetrics {

/// The width of the widest value of a fixed width, in bytes.
constexpr std::size_t kWidestValue = 8;

/// Makes `object` the value at `bytes` of the metric that `entry` describes: an object with one
/// member, or what the text of a "json" metric holds. Text that the library has rendered itself is
/// not parsed again for that.
///
/// False, with `object` still empty, when there is nothing to render: a copy was refused, or the
/// text of a "json" metric is not JSON.
bool RenderValue(const MetricEntry& entry, const char* bytes, VJson::Value& object);

}  // namespace vmetrics

#endif  // VMETRICS_VMETRICS_VALUERENDERING_H_
