/// A JSON array on standard output, an element a line.
#ifndef VMETRICS_TOOL_JSONARRAY_H_
#define VMETRICS_TOOL_JSONARRAY_H_

#include "VJson.h"

namespace vmetrics {

class JsonArray {
 public:
  /// Writes the element: valid JSON, in which a terminal finds nothing to obey.
  void Add(const VJson::Value& element);

  /// Writes the end, after the last element.
  void Finish() const;

 private:
  bool isEmpty_ = true;
};

}  // namespace vmetrics

#endif  // VMETRICS_TOOL_JSONARRAY_H_
