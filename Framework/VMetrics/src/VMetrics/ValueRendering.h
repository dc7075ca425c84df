/// Rendering of a metric's value, inside the library.
#ifndef VMETRICS_VMETRICS_VALUERENDERING_H_
#define VMETRICS_VMETRICS_VALUERENDERING_H_

#include <cstddef>
#include <string>

#include "VJson.h"
#include "VMetrics.h"

namespace vmetrics {

/// The width of the widest value of a fixed width, in bytes.
constexpr std::size_t kWidestValue = 8;

/// Makes `object` the value in `bytes` of the metric that `entry` describes: an object with one
/// member, or what the text of a "json" metric holds. Text that the library has rendered itself is
/// not parsed again for that. `bytes` must be as long as the widest value at least; a text in it is
/// cut at its NUL.
///
/// False, with `object` still empty, when there is nothing to render: a copy was refused, or the
/// text of a "json" metric is not JSON.
bool RenderValue(const MetricEntry& entry, std::string& bytes, VJson::Value& object);

}  // namespace vmetrics

#endif  // VMETRICS_VMETRICS_VALUERENDERING_H_
